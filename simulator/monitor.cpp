#include "monitor.h"

#include "profile.h"

#include <QJsonArray>
#include <algorithm>

namespace simulator
{

namespace
{
const QString kSelect = QStringLiteral("monitor.select");

bool isText(const QJsonValue &value)
{
    return value.isString();
}
} // namespace

Monitor::Monitor(CommandRegistry &hubKeys, const Parts &parts, QObject *parent)
    : QObject(parent)
    , m_parts(parts)
{
    const auto exists = [this] { return isThere(); };
    hubKeys.add(
        QStringLiteral("monitor.pers.modify"),
        [this](const QJsonValue &values, Session &) { return modify(values); }, exists);
    hubKeys.add(
        QStringLiteral("monitor.pers.read"),
        [this](const QJsonValue &names, Session &) { return read(names); }, exists);
    parts.hub.addGuard(kSelect, [this](const QJsonValue &value) { return checkSelection(value); });
    connect(&parts.hub, &HubData::changed, this,
            [this](const QString &key, const QJsonValue &value) {
                if (key == kSelect)
                    select(value);
            });
    connect(&parts.variables, &Variables::changed, this, &Monitor::report);
}

bool Monitor::isThere() const
{
    return Profile(m_parts.robot.values().version).hasMonitor();
}

Refusal Monitor::checkSelection(const QJsonValue &selection) const
{
    if (!isThere())
        return QStringLiteral("this version of the controller monitors no variables");
    const QJsonArray names = selection.toArray();
    if ((!selection.isArray() && !selection.isNull())
        || !std::all_of(names.begin(), names.end(), isText))
        return QStringLiteral("'%1' takes an array of names").arg(kSelect);
    if (names.size() > kMaxSelected)
        return QStringLiteral("%1 variables at most").arg(kMaxSelected);
    return std::nullopt;
}

void Monitor::select(const QJsonValue &selection)
{
    m_selected.clear();
    for (const QJsonValue &name : selection.toArray())
        m_selected += name.toString();
    m_parts.hub.set(QStringLiteral("monitor.pers"), QJsonArray::fromStringList(m_selected));
    report(QString());
}

void Monitor::report(const QString &name)
{
    if (!name.isEmpty() && !m_selected.contains(name))
        return;
    QJsonObject values;
    for (const QString &selected : qAsConst(m_selected)) {
        if (const auto *variable = persistent(selected))
            values.insert(selected, Variables::textOf(variable->value));
    }
    m_parts.hub.set(QStringLiteral("monitor.values"), values);
}

Reply Monitor::modify(const QJsonValue &values)
{
    if (!values.isObject())
        return Reply::bad(QStringLiteral("expected an object from names to values"));
    const QJsonObject wanted = values.toObject();
    for (auto entry = wanted.begin(); entry != wanted.end(); ++entry) {
        if (persistent(entry.key()) == nullptr)
            return Reply::refused(
                QStringLiteral("there is no persistent variable '%1'").arg(entry.key()));
        if (const Refusal refusal = m_parts.variables.checkValue(entry.key(), entry.value()))
            return Reply::refused(*refusal);
    }
    for (auto entry = wanted.begin(); entry != wanted.end(); ++entry)
        m_parts.variables.setValue(entry.key(), entry.value());
    return {};
}

Reply Monitor::read(const QJsonValue &names) const
{
    const QJsonArray wanted = names.toArray();
    if (!names.isArray() || !std::all_of(wanted.begin(), wanted.end(), isText))
        return Reply::bad(QStringLiteral("expected an array of names"));
    QJsonArray data;
    for (const QJsonValue &name : wanted) {
        const auto *variable = persistent(name.toString());
        data += variable != nullptr ? Variables::textOf(variable->value) : QString();
    }
    return Reply::done(QJsonObject {{QStringLiteral("data"), data}});
}

const Variables::Variable *Monitor::persistent(const QString &name) const
{
    const auto *variable = m_parts.variables.find(name);
    return variable != nullptr && variable->persistent ? variable : nullptr;
}

} // namespace simulator
