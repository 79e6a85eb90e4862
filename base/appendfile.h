#pragma once

#include <QString>

namespace logbase
{

/**
 * A file that is open for appending for the length of one log line. Every write lands at the
 * file's end in one piece, whoever else appends to it.
 */
class AppendFile
{
public:
    AppendFile() = default;
    ~AppendFile();
    AppendFile(const AppendFile &) = delete;
    AppendFile &operator=(const AppendFile &) = delete;

    /** Opens the file, or creates it with the directories that it lacks. False: see error(). */
    bool open(const QString &path);
    bool isOpen() const { return m_descriptor >= 0; }
    /** Size in bytes when the file was opened. */
    qint64 sizeAtOpen() const { return m_size; }
    /** Bytes that write() brought into the file. */
    qint64 written() const { return m_written; }
    /** True when all bytes were written. False: see error(); a part may be in the file. */
    bool write(const char *bytes, qint64 count);
    void close();

    /** Why the last call failed, in words. */
    QString errorString() const;

private:
    int m_descriptor = -1;
    int m_error = 0;
    qint64 m_size = 0;
    qint64 m_written = 0;
};

} // namespace logbase
