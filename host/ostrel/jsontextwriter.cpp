#include "ostrel/jsontext_p.h"

#include "ostrel/jsonexchange_p.h"

#include <QJsonArray>
#include <QJsonObject>
#include <charconv>
#include <cmath>
#include <cstring>

namespace ostrel
{

namespace
{
constexpr char hexDigits[] = "0123456789abcdef";

/** Text that grows in one buffer. */
class Writer
{
public:
    explicit Writer(bool indented)
        : m_indented(indented)
    {
    }

    void writeNode(const Node &node, int level);
    QByteArray finish();

private:
    void writeObject(const Node &node, int level);
    void writeList(const Node &node, int level);
    void writeForeign(const Node &node, int level);
    void writeInteger(qint64 number);
    void writeDouble(double number);
    void writeString(const QString &text);
    void writeUnit(const QChar *&at, const QChar *end);
    void escape(char letter);
    void escapeUnit(ushort unit);
    void startLine(int level);
    void put(char c) { *m_at++ = c; }
    void put(const char *text, size_t length);
    void room(size_t bytes)
    {
        if (size_t(m_end - m_at) < bytes)
            grow(bytes);
    }
    void grow(size_t bytes);

    QByteArray m_text;
    char *m_at = nullptr;
    char *m_end = nullptr;
    bool m_indented;
};

void Writer::grow(size_t bytes)
{
    const auto used = m_at ? m_at - m_text.data() : 0;
    const auto wanted = std::max(size_t(m_text.size()) * 2, size_t(used) + bytes + 256);
    m_text.resize(int(wanted));
    m_at = m_text.data() + used;
    m_end = m_text.data() + m_text.size();
}

void Writer::put(const char *text, size_t length)
{
    room(length);
    std::memcpy(m_at, text, length);
    m_at += length;
}

QByteArray Writer::finish()
{
    if (m_indented)
        put("\n", 1);
    m_text.resize(int(m_at - m_text.data()));
    m_text.squeeze();
    return std::move(m_text);
}

void Writer::startLine(int level)
{
    if (!m_indented)
        return;
    const auto blanks = size_t(level) * 4;
    room(blanks + 1);
    put('\n');
    std::memset(m_at, ' ', blanks);
    m_at += blanks;
}

void Writer::writeNode(const Node &node, int level)
{
    switch (node.kind()) {
    case Node::Kind::Empty:
        return put("null", 4);
    case Node::Kind::Bool:
        return node.boolean() ? put("true", 4) : put("false", 5);
    case Node::Kind::Int:
    case Node::Kind::LongLong:
        return writeInteger(node.integer());
    case Node::Kind::Double:
        return writeDouble(node.real());
    case Node::Kind::String:
        return writeString(node.string());
    case Node::Kind::Variant:
        return writeForeign(node, level);
    case Node::Kind::Object:
        return writeObject(node, level);
    case Node::Kind::List:
        return writeList(node, level);
    }
}

// Rare types take the way through the JSON value that export makes of them.
void Writer::writeForeign(const Node &node, int level)
{
    Node plain;
    fromJson(plain, toJson(node), true, true);
    writeNode(plain, level);
}

void Writer::writeObject(const Node &node, int level)
{
    const NameTable &names = NameTable::instance();
    put("{", 1);
    const Node *const first = node.begin();
    for (const Node &child : node) {
        if (&child != first)
            put(",", 1);
        startLine(level + 1);
        writeString(names.text(child.name()));
        m_indented ? put(": ", 2) : put(":", 1);
        writeNode(child, level + 1);
    }
    startLine(level);
    put("}", 1);
}

void Writer::writeList(const Node &node, int level)
{
    put("[", 1);
    const Node *const first = node.begin();
    for (const Node &child : node) {
        if (&child != first)
            put(",", 1);
        startLine(level + 1);
        writeNode(child, level + 1);
    }
    startLine(level);
    put("]", 1);
}

void Writer::writeInteger(qint64 number)
{
    room(24);
    m_at = std::to_chars(m_at, m_end, number).ptr;
}

// The shortest digits that read back as the same double; whole numbers as integers, but for the
// negative zero, which no integer is.
void Writer::writeDouble(double number)
{
    constexpr double integers = 9223372036854775808.0; // 2^63
    if (!std::isfinite(number))
        return put("null", 4);
    if (number == 0.0 && std::signbit(number))
        return put("-0.0", 4);
    const double size = std::fabs(number);
    if (size < integers && double(qint64(number)) == number)
        return writeInteger(qint64(number));
    room(40);
    const bool plain = size >= 1e-4 && size < integers;
    m_at = std::to_chars(m_at, m_end, number,
                         plain ? std::chars_format::fixed : std::chars_format::scientific)
               .ptr;
}

void Writer::writeString(const QString &text)
{
    room(size_t(text.size()) * 6 + 2);
    put('"');
    const QChar *at = text.constData();
    const QChar *const end = at + text.size();
    while (at != end) {
        const ushort unit = at->unicode();
        if (unit < 0x80 && unit >= 0x20 && unit != '"' && unit != '\\') {
            put(char(unit));
            ++at;
        } else {
            writeUnit(at, end);
        }
    }
    put('"');
}

// What is no plain ASCII. At most six bytes a unit, for which writeString made room.
void Writer::writeUnit(const QChar *&at, const QChar *end)
{
    const QChar c = *at++;
    const ushort unit = c.unicode();
    if (unit < 0x80) {
        escapeUnit(unit);
    } else if (unit < 0x800) {
        put(char(0xc0 | unit >> 6));
        put(char(0x80 | (unit & 0x3f)));
    } else if (!c.isSurrogate()) {
        put(char(0xe0 | unit >> 12));
        put(char(0x80 | (unit >> 6 & 0x3f)));
        put(char(0x80 | (unit & 0x3f)));
    } else if (c.isHighSurrogate() && at != end && at->isLowSurrogate()) {
        const uint point = QChar::surrogateToUcs4(c, *at++);
        put(char(0xf0 | point >> 18));
        put(char(0x80 | (point >> 12 & 0x3f)));
        put(char(0x80 | (point >> 6 & 0x3f)));
        put(char(0x80 | (point & 0x3f)));
    } else {
        escapeUnit(unit); // half a pair has no UTF-8, and must not get lost
    }
}

void Writer::escapeUnit(ushort unit)
{
    switch (unit) {
    case '"':
    case '\\':
        return escape(char(unit));
    case '\b':
        return escape('b');
    case '\f':
        return escape('f');
    case '\n':
        return escape('n');
    case '\r':
        return escape('r');
    case '\t':
        return escape('t');
    default:
        break;
    }
    if (unit == 0x7f)
        return put(char(unit));
    escape('u');
    for (int shift = 12; shift >= 0; shift -= 4)
        put(hexDigits[unit >> shift & 0xf]);
}

void Writer::escape(char letter)
{
    put('\\');
    put(letter);
}
} // namespace

QByteArray writeJsonText(const Node &node, bool indented)
{
    Writer writer(indented);
    writer.writeNode(node, 0);
    return writer.finish();
}

} // namespace ostrel
