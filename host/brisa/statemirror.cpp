#include "brisa/statemirror_p.h"

#include "brisa/brisalog_p.h"
#include "link/client.h"
#include "ostrel/moduleobject.h"

#include <QJsonObject>

namespace brisa
{
namespace
{

struct Member {
    const char *name;
    const char *key;
    QJsonValue::Type type;
};

constexpr Member stateMembers[] = {
    {"power", "brisa.r.power", QJsonValue::String},
    {"mode", "brisa.r.mode", QJsonValue::String},
    {"state", "brisa.r.state", QJsonValue::String},
    {"level", "brisa.r.level", QJsonValue::Double},
    {"id", "brisa.r.id", QJsonValue::String},
    {"version", "brisa.r.version", QJsonValue::String},
    {"robot", "brisa.setting.robot", QJsonValue::String},
};

constexpr Member paramMembers[] = {{"robot", "brisa.setting.robot", QJsonValue::String}};

void mirrorMember(const Member &member, const QJsonValue &json, QObject *origin)
{
    if (json.isUndefined())
        return;
    const bool fraction = json.isDouble() && json.toDouble() != json.toInt();
    if (json.type() != member.type || fraction) {
        qCWarning(brisaLog) << "the controller's" << member.name << "is of a wrong type:" << json;
        return;
    }
    const QVariant value
        = member.type == QJsonValue::Double ? QVariant(json.toInt()) : json.toVariant();
    ostrel::ModuleObject *node = m(QLatin1String(member.key));
    if (!node->isNull() && node->value() == value)
        return;
    rpc::deliver(QLatin1String(member.key), [&] { node->set(origin, value); });
}

template <std::size_t count>
void mirror(const Member (&members)[count], const QJsonObject &values, QObject *origin)
{
    for (const Member &member : members)
        mirrorMember(member, values.value(QLatin1String(member.name)), origin);
}

} // namespace

void mirrorState(const QJsonObject &state, QObject *origin)
{
    mirror(stateMembers, state, origin);
}

void mirrorParams(const QJsonObject &params, QObject *origin)
{
    mirror(paramMembers, params, origin);
}

} // namespace brisa
