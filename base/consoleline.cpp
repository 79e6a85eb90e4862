#include "consoleline.h"

namespace logbase
{

ConsoleLine::ConsoleLine(const QString &colour, const QString &prefix, const QString &tag)
    : m_debug(QMessageLogger(nullptr, 0, nullptr).debug())
{
    m_debug.nospace().noquote() << colour << prefix;
    if (!tag.isEmpty()) {
        m_debug << tag;
    }
}

ConsoleLine::~ConsoleLine()
{
    m_debug << "\x1b[0m";
}

// By way of UTF-8, as in the file: what cannot be encoded looks the same in both places.
void ConsoleLine::appendItem(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    // The maximum tells gcc that Qt does not look for the length: it warns of that on 64-bit Arm.
    m_debug << QString::fromUtf8(utf8.constData(), qMax(0, utf8.size()));
}

void ConsoleLine::appendItem(const void *pointer)
{
    m_debug << pointer;
}

// Not QDebug::space(), which also writes a blank at once.
void ConsoleLine::space()
{
    m_debug.setAutoInsertSpaces(true);
}

} // namespace logbase
