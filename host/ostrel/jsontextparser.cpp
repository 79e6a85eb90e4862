#include "ostrel/jsontext_p.h"

#include <QTextCodec>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <new>
#include <vector>

namespace ostrel
{

namespace
{
constexpr int maxLevels = 512;

/**
 * The children read so far of all open containers, the innermost last. A closed container moves its
 * own into a block of exactly their number.
 */
class NodeStack
{
public:
    NodeStack() = default;
    ~NodeStack()
    {
        cut(0);
        std::free(m_nodes);
    }
    Q_DISABLE_COPY(NodeStack)

    int size() const { return m_size; }
    Node &operator[](int index) { return m_nodes[index]; }
    /** Takes over one reference to name. */
    void push(NameId name)
    {
        if (m_size == m_capacity)
            grow();
        new (m_nodes + m_size++) Node(name);
    }
    /** Forgets the nodes from there on: they have been moved. */
    void forget(int from) { m_size = from; }
    void remove(int index)
    {
        m_nodes[index].~Node();
        std::memmove(static_cast<void *>(m_nodes + index),
                     static_cast<const void *>(m_nodes + index + 1),
                     size_t(m_size - index - 1) * sizeof(Node));
        --m_size;
    }

private:
    void cut(int from)
    {
        while (m_size > from)
            m_nodes[--m_size].~Node();
    }
    void grow()
    {
        m_capacity = m_capacity ? m_capacity * 2 : 256;
        void *block = std::realloc(static_cast<void *>(m_nodes), size_t(m_capacity) * sizeof(Node));
        if (!block)
            throw std::bad_alloc();
        m_nodes = static_cast<Node *>(block);
    }

    Node *m_nodes = nullptr;
    int m_size = 0;
    int m_capacity = 0;
};

class Parser
{
public:
    explicit Parser(const QByteArray &text)
        : m_begin(text.constData())
        , m_at(m_begin)
        , m_end(m_begin + text.size())
    {
    }

    ~Parser()
    {
        for (const KnownName &known : m_knownNames)
            NameTable::instance().release(known.id);
    }
    Q_DISABLE_COPY(Parser)

    bool parse(Node *node);
    QString error() const;

private:
    struct KnownName {
        const char *text = nullptr;
        size_t length = 0;
        NameId id = 0;
    };

    struct PlainText {
        const char *end;
        size_t hash;
        bool closed; // by its quote: there is no escape
    };
    struct KnownText {
        const char *bytes = nullptr;
        size_t length = 0;
        QString text;
    };

    bool parseValue(int slot, int level);
    bool parseObject(int slot, int level);
    bool parseMember(int level);
    bool parseList(int slot, int level);
    bool parseWord(const char *word, size_t length);
    bool parseNumber(int slot);
    bool skipDigits();
    bool parseInteger(const char *from, int slot);
    bool parseDouble(const char *from, int slot);
    bool parseText();
    bool parseString();
    bool parseEscape();
    bool parseHex();
    bool parseName(NameId *name);
    PlainText scanPlain(const char *from) const;
    void dropDuplicates(int from);
    bool decode(const char *from);
    void skipBlanks()
    {
        // Indented text consists of blanks for the better part.
        constexpr char indent[] = "        ";
        constexpr int step = sizeof indent - 1;
        if (m_at != m_end && *m_at == '\n')
            ++m_at;
        while (m_end - m_at >= step && !std::memcmp(m_at, indent, step))
            m_at += step;
        while (m_at != m_end && (*m_at == ' ' || *m_at == '\n' || *m_at == '\r' || *m_at == '\t'))
            ++m_at;
    }
    bool take(char c)
    {
        if (m_at == m_end || *m_at != c)
            return false;
        ++m_at;
        return true;
    }
    bool fail(const char *problem)
    {
        m_problem = problem;
        return false;
    }

    const char *const m_begin;
    const char *m_at;
    const char *const m_end;
    const char *m_problem = nullptr;
    NodeStack m_stack;
    QString m_string; // the last string read
    std::vector<KnownName> m_knownNames = std::vector<KnownName>(256);
    std::vector<KnownText> m_knownTexts = std::vector<KnownText>(256);
    std::vector<int> m_lastObject; // by name: the object that had it last
    int m_objects = 0;
};

bool Parser::parse(Node *node)
{
    static const char byteOrderMark[] = "\xef\xbb\xbf";
    if (m_end - m_at >= 3 && !std::memcmp(m_at, byteOrderMark, 3))
        m_at += 3;
    m_stack.push(0);
    if (!parseValue(0, 0))
        return false;
    skipBlanks();
    if (m_at != m_end)
        return fail("text after the end of the document");
    node->takeContent(m_stack[0]);
    return true;
}

bool Parser::parseValue(int slot, int level)
{
    skipBlanks();
    if (m_at == m_end)
        return fail("the document ends where a value should be");
    switch (*m_at) {
    case '{':
        return parseObject(slot, level + 1);
    case '[':
        return parseList(slot, level + 1);
    case '"':
        if (!parseText())
            return false;
        m_stack[slot].setString(m_string);
        return true;
    case 't':
        m_stack[slot].setBool(true);
        return parseWord("true", 4);
    case 'f':
        m_stack[slot].setBool(false);
        return parseWord("false", 5);
    case 'n':
        return parseWord("null", 4);
    default:
        return parseNumber(slot);
    }
}

bool Parser::parseWord(const char *word, size_t length)
{
    if (size_t(m_end - m_at) < length || std::memcmp(m_at, word, length) != 0)
        return fail("a value should be here");
    m_at += length;
    return true;
}

bool Parser::parseObject(int slot, int level)
{
    if (level > maxLevels)
        return fail("nested too deep");
    ++m_at;
    const int first = m_stack.size();
    skipBlanks();
    if (!take('}')) {
        do {
            if (!parseMember(level))
                return false;
        } while (take(','));
        if (!take('}'))
            return fail("',' or '}' should be here");
    }
    dropDuplicates(first);
    const int count = m_stack.size() - first;
    m_stack.forget(first);
    m_stack[slot].adopt(Node::Kind::Object, &m_stack[first], count);
    return true;
}

bool Parser::parseMember(int level)
{
    skipBlanks();
    NameId name = 0;
    if (!parseName(&name))
        return false;
    m_stack.push(name);
    skipBlanks();
    if (!take(':'))
        return fail("':' should be here");
    if (!parseValue(m_stack.size() - 1, level))
        return false;
    skipBlanks();
    return true;
}

bool Parser::parseList(int slot, int level)
{
    if (level > maxLevels)
        return fail("nested too deep");
    ++m_at;
    const int first = m_stack.size();
    skipBlanks();
    if (!take(']')) {
        do {
            m_stack.push(0);
            if (!parseValue(m_stack.size() - 1, level))
                return false;
            skipBlanks();
        } while (take(','));
        if (!take(']'))
            return fail("',' or ']' should be here");
    }
    const int count = m_stack.size() - first;
    m_stack.forget(first);
    m_stack[slot].adopt(Node::Kind::List, &m_stack[first], count);
    return true;
}

// Of members of one name the last counts.
void Parser::dropDuplicates(int from)
{
    ++m_objects;
    m_lastObject.resize(std::max(m_lastObject.size(), size_t(NameTable::instance().end())));
    for (int i = m_stack.size(); i-- > from;) {
        int &last = m_lastObject[m_stack[i].name()];
        if (last == m_objects)
            m_stack.remove(i);
        last = m_objects;
    }
}

bool Parser::skipDigits()
{
    const char *const from = m_at;
    while (m_at != m_end && *m_at >= '0' && *m_at <= '9')
        ++m_at;
    return m_at != from;
}

// Checks the form, which is stricter than what from_chars accepts.
bool Parser::parseNumber(int slot)
{
    const char *const from = m_at;
    const bool negative = take('-');
    const bool zero = m_at != m_end && *m_at == '0';
    if (!skipDigits())
        return fail(negative ? "a digit should be here" : "a value should be here");
    if (zero && m_at - from > 1 + negative)
        return fail("a number must not start with 0");
    bool whole = true;
    if (take('.')) {
        whole = false;
        if (!skipDigits())
            return fail("a digit should be here");
    }
    if (take('e') || take('E')) {
        whole = false;
        if (!take('+'))
            take('-');
        if (!skipDigits())
            return fail("a digit should be here");
    }
    if (whole && parseInteger(from, slot))
        return true;
    return parseDouble(from, slot);
}

bool Parser::parseDouble(const char *from, int slot)
{
    double number = 0;
    if (std::from_chars(from, m_at, number).ec == std::errc::result_out_of_range)
        number
            = QByteArray(from, int(m_at - from)).toDouble(); // too small is 0, too large infinite
    if (!std::isfinite(number))
        return fail("the number is too large");
    const bool negativeZero = number == 0.0 && std::signbit(number);
    constexpr double integers = 9223372036854775808.0; // 2^63
    if (std::fabs(number) < integers && double(qint64(number)) == number && !negativeZero)
        m_stack[slot].setLongLong(qint64(number));
    else
        m_stack[slot].setNumber(number);
    return true;
}

bool Parser::parseInteger(const char *from, int slot)
{
    qint64 number = 0;
    const bool fits = std::from_chars(from, m_at, number).ec == std::errc();
    if (!fits || (!number && *from == '-'))
        return false;
    m_stack[slot].setLongLong(number);
    return true;
}

// Short texts repeat as names do (a tool, a task, a word for a flag): equal ones share their
// memory.
bool Parser::parseText()
{
    constexpr std::ptrdiff_t longest = 64;
    const char *const from = m_at + 1;
    const PlainText plain = scanPlain(from);
    KnownText &known = m_knownTexts[plain.hash % m_knownTexts.size()];
    const bool isShort = plain.closed && plain.end - from <= longest;
    const auto length = size_t(plain.end - from);
    if (isShort && known.bytes && known.length == length
        && !std::memcmp(known.bytes, from, length)) {
        m_string = known.text;
        m_at = plain.end + 1;
        return true;
    }
    if (!parseString())
        return false;
    if (isShort)
        known = {from, length, m_string};
    return true;
}

// Reads a string, from its quote to behind the other, into m_string.
bool Parser::parseString()
{
    const char *from = ++m_at;
    bool ascii = true;
    while (m_at != m_end && *m_at != '"' && *m_at != '\\' && uchar(*m_at) >= 0x20) {
        ascii = ascii && uchar(*m_at) < 0x80;
        ++m_at;
    }
    m_string = ascii ? QString::fromLatin1(from, int(m_at - from)) : QString();
    if (!ascii && !decode(from))
        return false;
    while (!take('"')) {
        if (m_at == m_end)
            return fail("the document ends inside a string");
        if (uchar(*m_at) < 0x20)
            return fail("a control character inside a string");
        if (*m_at == '\\' && !parseEscape())
            return false;
        from = m_at;
        while (m_at != m_end && *m_at != '"' && *m_at != '\\' && uchar(*m_at) >= 0x20)
            ++m_at;
        if (!decode(from))
            return false;
    }
    return true;
}

bool Parser::decode(const char *from)
{
    static QTextCodec *const utf8 = QTextCodec::codecForName("UTF-8");
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    m_string += utf8->toUnicode(from, int(m_at - from), &state);
    if (!state.invalidChars && !state.remainingChars)
        return true;
    m_at = from;
    return fail("the string that starts here is not valid UTF-8");
}

bool Parser::parseEscape()
{
    static const char letters[] = "\"\\/bfnrt";
    static const char meanings[] = "\"\\/\b\f\n\r\t";
    ++m_at;
    if (m_at == m_end)
        return fail("the document ends inside a string");
    const char letter = *m_at++;
    if (letter == 'u')
        return parseHex();
    const char *place = letter ? std::strchr(letters, letter) : nullptr;
    if (!place)
        return fail("an unknown escape inside a string");
    m_string += QLatin1Char(meanings[place - letters]);
    return true;
}

// Half a surrogate pair is kept as it is: the writer makes it an escape again.
bool Parser::parseHex()
{
    ushort unit = 0;
    const char *const end = m_end - m_at < 4 ? m_end : m_at + 4;
    const auto parsed = std::from_chars(m_at, end, unit, 16);
    if (parsed.ptr != m_at + 4)
        return fail("four hexadecimal digits should be here");
    m_at = parsed.ptr;
    m_string += QChar(unit);
    return true;
}

// Names repeat from record to record: plain ones are recognised by their bytes.
bool Parser::parseName(NameId *name)
{
    if (m_at == m_end || *m_at != '"')
        return fail("a member name in quotes should be here");
    const char *const from = m_at + 1;
    const PlainText plain = scanPlain(from);
    KnownName &known = m_knownNames[plain.hash % m_knownNames.size()];
    const auto length = size_t(plain.end - from);
    if (plain.closed && known.id && known.length == length
        && !std::memcmp(known.text, from, length)) {
        NameTable::instance().acquire(known.id);
        m_at = plain.end + 1;
        *name = known.id;
        return true;
    }
    if (!parseString())
        return false;
    *name = NameTable::instance().acquire(m_string);
    if (!plain.closed)
        return true;
    NameTable::instance().acquire(*name);
    NameTable::instance().release(known.id);
    known = {from, length, *name};
    return true;
}

// The part of a string up to the first escape, with a hash of its bytes.
Parser::PlainText Parser::scanPlain(const char *from) const
{
    const char *to = from;
    size_t hash = 0;
    while (to != m_end && *to != '"' && *to != '\\' && uchar(*to) >= 0x20)
        hash = hash * 31 + uchar(*to++);
    return {to, hash, to != m_end && *to == '"'};
}

QString Parser::error() const
{
    int line = 1;
    const char *start = m_begin;
    for (const char *at = m_begin; at != m_at; ++at) {
        if (*at != '\n')
            continue;
        ++line;
        start = at + 1;
    }
    return QStringLiteral("line %1, column %2 (offset %3): %4")
        .arg(line)
        .arg(m_at - start + 1)
        .arg(m_at - m_begin)
        .arg(QLatin1String(m_problem));
}
} // namespace

bool parseJsonText(const QByteArray &text, Node *node, QString *error)
{
    Parser parser(text);
    if (parser.parse(node))
        return true;
    if (error)
        *error = parser.error();
    return false;
}

} // namespace ostrel
