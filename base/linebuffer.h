#pragma once

#include <QString>
#include <QVarLengthArray>

namespace logbase
{

/** The UTF-8 text of one line of a log file. Short lines take no memory of their own. */
class LineBuffer
{
public:
    /** Appends the text as it is; no blank follows. */
    void append(const QString &text);
    /** Appends one item of the line, followed by a blank where spacing is on. */
    void appendItem(const QString &text);
    void appendItem(const void *pointer);
    /** From now on a blank follows each item. Writes nothing itself. */
    void space() { m_spacing = true; }
    void endLine();

    const char *data() const { return m_bytes.constData(); }
    int size() const { return m_bytes.size(); }

private:
    // With its owner it stays below the largest block that the allocator keeps per thread.
    QVarLengthArray<char, 640> m_bytes;
    bool m_spacing = false;
};

} // namespace logbase
