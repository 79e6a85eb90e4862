#include "linebuffer.h"

#include "ascii.h"

#include <algorithm>

namespace logbase
{

void LineBuffer::append(const QString &text)
{
    // Takes no memory in between.
    if (isAscii(text)) {
        const int end = m_bytes.size();
        m_bytes.resize(end + text.size());
        std::transform(text.begin(), text.end(), m_bytes.begin() + end,
                       [](QChar c) { return static_cast<char>(c.unicode()); });
        return;
    }
    const QByteArray utf8 = text.toUtf8();
    m_bytes.append(utf8.constData(), utf8.size());
}

void LineBuffer::appendItem(const QString &text)
{
    append(text);
    if (m_spacing) {
        m_bytes.append(' ');
    }
}

void LineBuffer::appendItem(const void *pointer)
{
    const auto address = reinterpret_cast<quintptr>(pointer);
    appendItem(QLatin1String("0x") + QString::number(address, 16));
}

void LineBuffer::endLine()
{
    m_bytes.append('\n');
}

} // namespace logbase
