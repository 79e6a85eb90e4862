#include "ostrel/jsonexchange_p.h"
#include "ostrel/jsontext_p.h"
#include "ostrel/jsontextwriter_p.h"

#include <cmath>

namespace ostrel
{

void JsonTextWriter::writeValue(const QJsonValue &value, const Node *list, int level)
{
    if (level > maxDepth) {
        m_complete = false;
        return;
    }
    switch (value.type()) {
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        return put("null", 4);
    case QJsonValue::Bool:
        return value.toBool() ? put("true", 4) : put("false", 5);
    case QJsonValue::Double:
        return writeNumber(value);
    case QJsonValue::String:
        return writeString(value.toString());
    case QJsonValue::Array:
        return writeArray(value.toArray(), list, level);
    case QJsonValue::Object:
        return writeObject(value.toObject(), nullptr, list, level);
    }
}

void JsonTextWriter::writeNumber(const QJsonValue &number)
{
    constexpr double exactIntegers = 9007199254740992.0; // 2^53: above, only the variant is exact
    if (std::fabs(number.toDouble()) < exactIntegers)
        return writeDouble(number.toDouble());
    const QVariant exact = number.toVariant();
    exact.userType() == QMetaType::LongLong ? writeInteger(exact.toLongLong())
                                            : writeDouble(number.toDouble());
}

void JsonTextWriter::writeArray(const QJsonArray &elements, const Node *list, int level)
{
    const bool alike = list && list->childCount() == elements.size();
    put("[", 1);
    for (int i = 0; i < elements.size(); ++i) {
        const QJsonValue element = elements.at(i);
        startElement(i == 0, level + 1);
        if (alike && element.isObject())
            writeObject(element.toObject(), list->childAt(i), list, level + 1);
        else
            writeValue(element, list, level + 1);
    }
    startLine(level);
    put("]", 1);
}

// A record's member that keeps this very JSON has not changed since. Equality is decided by the
// content: it is only quick where both share it.
void JsonTextWriter::writeObject(const QJsonObject &members, const Node *record, const Node *list,
                                 int level)
{
    const NameTable &names = NameTable::instance();
    put("{", 1);
    for (auto member = members.begin(); member != members.end(); ++member) {
        const QString name = member.key();
        const QJsonValue value = member.value();
        startMember(name, member == members.begin(), level + 1);
        const bool nested = record && (value.isObject() || value.isArray());
        const Node *node = nested ? record->child(names.find(name)) : nullptr;
        if (node && node->keptJson() == value)
            writeNode(*node, level + 1);
        else
            writeValue(value, list, level + 1);
    }
    startLine(level);
    put("}", 1);
}

bool writeJsonValue(const QJsonValue &value, bool indented, const Node *list, QIODevice *device)
{
    JsonTextWriter writer(indented, device);
    writer.setLikeExport(true);
    writer.writeValue(value, list, 0);
    writer.finish();
    return writer.isComplete() && !value.isUndefined();
}

} // namespace ostrel
