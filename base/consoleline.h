#pragma once

#include <QDebug>
#include <QString>

namespace logbase
{

/**
 * One line for the message handler, at debug level and in the category "default". The line is
 * handed over, with the colour reset, when the object dies.
 */
class ConsoleLine
{
public:
    ConsoleLine(const QString &colour, const QString &prefix, const QString &tag);
    ~ConsoleLine();
    ConsoleLine(const ConsoleLine &) = delete;
    ConsoleLine &operator=(const ConsoleLine &) = delete;

    void appendItem(const QString &text);
    void appendItem(const void *pointer);
    /** From now on a blank follows each item. Writes nothing itself. */
    void space();

private:
    QDebug m_debug;
};

} // namespace logbase
