#include "hotupdate.h"

#include <QJsonArray>
#include <algorithm>

namespace simulator
{

namespace
{
const QString kAdd = QStringLiteral("add");
const QString kEdit = QStringLiteral("edit");
const QString kRemove = QStringLiteral("remove");
const QString kRefresh = QStringLiteral("pers_point_refresh");

QString textOf(const QJsonObject &entry, const char *member)
{
    return entry[QLatin1String(member)].toString();
}

/** What is removed comes as its record: a point's has no type, but says what kind of target it is.
 */
bool isPoint(const QJsonObject &entry)
{
    const QString type = textOf(entry, "type");
    if (type.isEmpty())
        return entry.contains(QStringLiteral("property"));
    return type == QLatin1String("robtarget") || type == QLatin1String("jointtarget");
}

bool meets(const HotUpdateRule &rule, const QString &operation, const QJsonObject &entry)
{
    return (rule.operation.isEmpty() || rule.operation == operation)
        && (rule.type.isEmpty() || rule.type == textOf(entry, "type"))
        && (!rule.name || rule.name->match(textOf(entry, "name")).hasMatch());
}

bool hasName(const QJsonValue &entry)
{
    return entry.isObject() && !textOf(entry.toObject(), "name").isEmpty();
}
} // namespace

HotUpdate::HotUpdate(CommandRegistry &hubKeys, const QVector<HotUpdateRule> &rules,
                     Variables &variables)
    : m_rules(rules)
    , m_variables(variables)
{
    hubKeys.add(QStringLiteral("project.variable"),
                [this](const QJsonValue &arguments, Session &) { return update(arguments); });
}

QStringList HotUpdate::operations()
{
    return {kAdd, kEdit, kRemove, kRefresh};
}

Reply HotUpdate::update(const QJsonValue &arguments)
{
    const QString operation = arguments[QStringLiteral("operator")].toString();
    const QJsonValue list = arguments[QStringLiteral("variables")];
    if (!operations().contains(operation))
        return Reply::bad(QStringLiteral("the argument 'operator' has to be one of %1")
                              .arg(operations().join(QStringLiteral(", "))));
    const QJsonArray entries = list.toArray();
    if (!list.isArray() || !std::all_of(entries.begin(), entries.end(), hasName))
        return Reply::bad(
            QStringLiteral("the argument 'variables' has to be an array of objects with a name"));

    const HotUpdateRule *rule = ruleFor(operation, entries);
    if (rule != nullptr && !rule->reason.isEmpty())
        return Reply::refused(rule->reason);
    if (rule != nullptr && rule->reply != 0)
        return Reply::done(rule->reply);
    for (const QJsonValue &entry : entries) {
        if (const Refusal refusal = apply(operation, entry.toObject()))
            return Reply::refused(*refusal);
    }
    return Reply::done(0);
}

/** The first rule that meets one of the entries: an update is carried out as a whole or not. */
const HotUpdateRule *HotUpdate::ruleFor(const QString &operation, const QJsonArray &entries) const
{
    for (const HotUpdateRule &rule : m_rules) {
        if (std::any_of(entries.begin(), entries.end(), [&](const QJsonValue &entry) {
                return meets(rule, operation, entry.toObject());
            }))
            return &rule;
    }
    return nullptr;
}

Refusal HotUpdate::apply(const QString &operation, const QJsonObject &entry)
{
    const QString name = textOf(entry, "name");
    return isPoint(entry) ? applyToPoint(operation, name, entry)
                          : applyToVariable(operation, name, entry);
}

Refusal HotUpdate::applyToPoint(const QString &operation, const QString &name,
                                const QJsonObject &entry)
{
    if (operation == kRemove) {
        m_points.remove(name);
        return std::nullopt;
    }
    if (m_points.size() >= kMaxPoints && !m_points.contains(name))
        return QStringLiteral("there are %1 points already").arg(kMaxPoints);
    if (operation != kRefresh) {
        m_points.insert(name, entry);
        return std::nullopt;
    }
    QJsonObject point = m_points[name].toObject();
    QJsonObject elements = point[QStringLiteral("value")].toObject();
    const QString index = textOf(entry, "s_d");
    elements.insert(index, entry[index]);
    point.insert(QStringLiteral("name"), name);
    point.insert(QStringLiteral("type"), entry[QStringLiteral("type")]);
    point.insert(QStringLiteral("value"), elements);
    m_points.insert(name, point);
    return std::nullopt;
}

Refusal HotUpdate::applyToVariable(const QString &operation, const QString &name,
                                   const QJsonObject &entry)
{
    const QString oldName = textOf(entry, "old_name");
    if (operation == kRemove || (operation == kEdit && oldName != name))
        m_variables.remove(operation == kRemove ? name : oldName);
    if (operation == kRemove)
        return std::nullopt;
    return m_variables.put(Variables::Variable::fromRecord(entry));
}

} // namespace simulator
