#include "ostrel/jsontextwriter_p.h"

#include "ostrel/jsonexchange_p.h"
#include "ostrel/jsontext_p.h"

#include <QIODevice>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

namespace ostrel
{

namespace
{
constexpr char hexDigits[] = "0123456789abcdef";
constexpr int chunk = 256 * 1024; // stays in the processor's cache until the file has it
constexpr double integers = 9223372036854775808.0; // 2^63
} // namespace

JsonTextWriter::JsonTextWriter(bool indented, QIODevice *device)
    : m_device(device)
    , m_text(device ? chunk : 256, Qt::Uninitialized)
    , m_at(m_text.data())
    , m_end(m_at + m_text.size())
    , m_indented(indented)
{
}

void JsonTextWriter::grow(size_t bytes)
{
    if (m_device)
        flush();
    const auto used = m_at - m_text.constData();
    const auto usual = size_t(m_text.size()) * (m_device ? 1 : 2);
    const auto wanted = std::max(usual, size_t(used) + bytes + 256);
    m_text.resize(int(wanted));
    m_at = m_text.data() + used;
    m_end = m_text.data() + m_text.size();
}

void JsonTextWriter::put(const char *text, size_t length)
{
    room(length);
    std::memcpy(m_at, text, length);
    m_at += length;
}

QByteArray JsonTextWriter::finish()
{
    if (m_indented)
        put("\n", 1);
    if (m_device) {
        flush();
        return {};
    }
    m_text.resize(int(m_at - m_text.data()));
    m_text.squeeze();
    return std::move(m_text);
}

// A device tells its errors itself, but of a full disk only the write after the one that was short.
void JsonTextWriter::flush()
{
    const char *from = m_text.constData();
    while (from != m_at) {
        const qint64 written = m_device->write(from, m_at - from);
        if (written <= 0)
            break;
        from += written;
    }
    m_at = m_text.data();
}

void JsonTextWriter::startMember(const QString &name, bool first, int level)
{
    startElement(first, level);
    writeString(name);
    m_indented ? put(": ", 2) : put(":", 1);
}

void JsonTextWriter::startElement(bool first, int level)
{
    if (!first)
        put(",", 1);
    startLine(level);
}

void JsonTextWriter::startLine(int level)
{
    if (!m_indented)
        return;
    const auto blanks = size_t(level) * 4;
    room(blanks + 1);
    put('\n');
    std::memset(m_at, ' ', blanks);
    m_at += blanks;
}

void JsonTextWriter::writeNode(const Node &node, int level)
{
    if (level > maxDepth) {
        m_complete = false;
        return;
    }
    switch (node.kind()) {
    case Node::Kind::Empty:
        return put("null", 4);
    case Node::Kind::Bool:
        return node.boolean() ? put("true", 4) : put("false", 5);
    case Node::Kind::Int:
    case Node::Kind::LongLong:
        return m_likeExport ? writeDouble(double(node.integer())) : writeInteger(node.integer());
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
void JsonTextWriter::writeForeign(const Node &node, int level)
{
    Node plain;
    fromJson(plain, toJson(node), true, true);
    writeNode(plain, level);
}

void JsonTextWriter::writeObject(const Node &node, int level)
{
    const NameTable &names = NameTable::instance();
    const Members members = membersOf(node);
    put("{", 1);
    for (const Node *member : members) {
        startMember(names.text(member->name()), member == members.first(), level + 1);
        writeNode(*member, level + 1);
    }
    startLine(level);
    put("}", 1);
}

JsonTextWriter::Members JsonTextWriter::membersOf(const Node &node) const
{
    Members members;
    for (const Node &child : node)
        members.append(&child);
    if (!m_likeExport)
        return members;
    const NameTable &names = NameTable::instance();
    const auto isLess = [&names](const Node *left, const Node *right) {
        return names.text(left->name()) < names.text(right->name());
    };
    if (!std::is_sorted(members.begin(), members.end(), isLess))
        std::sort(members.begin(), members.end(), isLess);
    return members;
}

void JsonTextWriter::writeList(const Node &node, int level)
{
    put("[", 1);
    for (const Node &child : node) {
        startElement(&child == node.begin(), level + 1);
        writeNode(child, level + 1);
    }
    startLine(level);
    put("]", 1);
}

void JsonTextWriter::writeInteger(qint64 number)
{
    room(24);
    m_at = std::to_chars(m_at, m_end, number).ptr;
}

// The shortest digits that read back as the same double; whole numbers as integers, but for the
// negative zero, which no integer is.
void JsonTextWriter::writeDouble(double number)
{
    if (!std::isfinite(number))
        return put("null", 4);
    if (number == 0.0 && std::signbit(number) && !m_likeExport)
        return put("-0.0", 4);
    const double size = std::fabs(number);
    if (size < integers && double(qint64(number)) == number)
        return writeInteger(qint64(number));
    room(40);
    if (writeDecimal(number))
        return;
    const bool plain = size >= 1e-4 && size < integers;
    m_at = std::to_chars(m_at, m_end, number,
                         plain ? std::chars_format::fixed : std::chars_format::scientific)
               .ptr;
}

// Most numbers were rounded to six decimals once. What has at most 15 digits in all is the shortest
// text of the double next to it, and dividing gives exactly that double.
bool JsonTextWriter::writeDecimal(double number)
{
    constexpr int decimals = 6;
    constexpr qint64 unit = 1000000;
    const double size = std::fabs(number);
    if (size < 1e-4 || size >= 1e9)
        return false;
    const auto units = qint64(std::nearbyint(size * unit));
    if (double(units) / unit != size)
        return false;
    if (number < 0)
        put('-');
    m_at = std::to_chars(m_at, m_end, units / unit).ptr;
    put('.');
    qint64 rest = units % unit;
    for (int i = decimals; i-- > 0; rest /= 10)
        m_at[i] = char('0' + rest % 10);
    for (m_at += decimals; m_at[-1] == '0';)
        --m_at;
    return true;
}

void JsonTextWriter::writeString(const QString &text)
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
void JsonTextWriter::writeUnit(const QChar *&at, const QChar *end)
{
    const QChar c = *at++;
    const ushort unit = c.unicode();
    const bool isPair = c.isHighSurrogate() && at != end && at->isLowSurrogate();
    if (unit < 0x80 || (c.isSurrogate() && !isPair)) {
        escapeUnit(unit); // half a pair has no UTF-8, and must not get lost
    } else if (unit < 0x800) {
        put(char(0xc0 | unit >> 6));
        put(char(0x80 | (unit & 0x3f)));
    } else if (!isPair) {
        put(char(0xe0 | unit >> 12));
        put(char(0x80 | (unit >> 6 & 0x3f)));
        put(char(0x80 | (unit & 0x3f)));
    } else {
        const uint point = QChar::surrogateToUcs4(c, *at++);
        put(char(0xf0 | point >> 18));
        put(char(0x80 | (point >> 12 & 0x3f)));
        put(char(0x80 | (point >> 6 & 0x3f)));
        put(char(0x80 | (point & 0x3f)));
    }
}

void JsonTextWriter::escapeUnit(ushort unit)
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

void JsonTextWriter::escape(char letter)
{
    put('\\');
    put(letter);
}

QByteArray writeJsonText(const Node &node, bool indented)
{
    JsonTextWriter writer(indented);
    writer.writeNode(node, 0);
    return writer.finish();
}

} // namespace ostrel
