#pragma once

#include <QByteArray>
#include <QString>

#include <ctime>
#include <vector>

namespace zeplet
{

/** A log file below a root, by its path from there. */
struct LogTreeFile {
    QByteArray path;
    qint64 size = 0;
    timespec modified = {};
};

/**
 * The regular files "*.log" below a root, hidden ones and hidden directories left out. Links are
 * neither followed nor listed, so that nothing outside the root is counted or deleted. What cannot
 * be read is passed over.
 */
class LogTree
{
public:
    explicit LogTree(const QString &root);
    ~LogTree();
    LogTree(const LogTree &) = delete;
    LogTree &operator=(const LogTree &) = delete;

    bool exists() const { return m_root >= 0; }
    /** Sum of the sizes, in bytes. */
    qint64 totalSize() const;
    /** By time of modification; files of one time by path. */
    std::vector<LogTreeFile> oldestFirst() const;
    bool remove(const LogTreeFile &file) const;

private:
    std::vector<LogTreeFile> files() const;

    int m_root = -1;
};

} // namespace zeplet
