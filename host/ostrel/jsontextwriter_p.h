#pragma once

#include "ostrel/node_p.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QVarLengthArray>

class QIODevice;

namespace ostrel
{

/** JSON text in UTF-8 that grows in one buffer, which is emptied into a device where one is given.
 */
class JsonTextWriter
{
public:
    explicit JsonTextWriter(bool indented, QIODevice *device = nullptr);

    /**
     * As the JSON that the node is exported as would be written: members in order of their names,
     * numbers as exact as JSON has them.
     */
    void setLikeExport(bool on) { m_likeExport = on; }
    void writeNode(const Node &node, int level);

    /**
     * Writes a value as a node would be that was filled from it. An array with as many elements as
     * the list has may consist of its records: what these keep as exported is written from them.
     */
    void writeValue(const QJsonValue &value, const Node *list, int level);

    /** False once something was nested too deep, and left out. */
    bool isComplete() const { return m_complete; }
    /** The text, where there is no device. */
    QByteArray finish();

private:
    using Members = QVarLengthArray<const Node *, 32>;

    void writeObject(const Node &node, int level);
    void writeList(const Node &node, int level);
    void writeForeign(const Node &node, int level);
    void writeObject(const QJsonObject &members, const Node *record, const Node *list, int level);
    void writeArray(const QJsonArray &elements, const Node *list, int level);
    void writeNumber(const QJsonValue &number);
    void writeInteger(qint64 number);
    void writeDouble(double number);
    bool writeDecimal(double number);
    void writeString(const QString &text);
    void writeUnit(const QChar *&at, const QChar *end);
    void escape(char letter);
    void escapeUnit(ushort unit);
    Members membersOf(const Node &node) const;
    void startMember(const QString &name, bool first, int level);
    void startElement(bool first, int level);
    void startLine(int level);
    void put(char c) { *m_at++ = c; }
    void put(const char *text, size_t length);
    void room(size_t bytes)
    {
        if (size_t(m_end - m_at) < bytes)
            grow(bytes);
    }
    void grow(size_t bytes);
    void flush();

    QIODevice *const m_device;
    QByteArray m_text;
    char *m_at;
    char *m_end;
    const bool m_indented;
    bool m_likeExport = false;
    bool m_complete = true;
};

} // namespace ostrel
