#include "robotstate.h"

#include <QTimer>
#include <brisa/controllermanager.h>
#include <brisa/managerhelper.h>
#include <brisa/tasknetworkmanager.h>
#include <nexo/nexo.h>
#include <ostrel/moduleobject.h>

namespace panel
{

namespace
{

ostrel::ModuleObject *hubFlag()
{
    return nexo()->mobj()->r(QStringLiteral("connected"));
}

std::optional<bool> meaning(const QString &word, QLatin1String yes, QLatin1String no)
{
    if (word == yes || word == no)
        return word == yes;
    return std::nullopt;
}

} // namespace

RobotState::RobotState(QObject *parent)
    : QObject(parent)
{
    for (const char *member : {"power", "mode", "state", "level", "id", "version"})
        watch(m(QStringLiteral("brisa.r.") + QLatin1String(member)));
    watch(m(QStringLiteral("brisa.setting.robot")));
    watch(hubFlag());
    const auto *const controller = brisa::ManagerHelper::instance()->controllerManager();
    connect(controller, &brisa::ControllerManager::rcConnected, this, &RobotState::announce);
    connect(controller, &brisa::ControllerManager::rcDisconnected, this, &RobotState::announce);
}

void RobotState::watch(ostrel::ModuleObject *node)
{
    connect(node, &ostrel::ModuleObject::changed, this, &RobotState::announce);
}

/** The members of one state object arrive one by one: they are announced together. */
void RobotState::announce()
{
    if (m_announced)
        return;
    m_announced = true;
    QTimer::singleShot(0, this, [this] {
        m_announced = false;
        Q_EMIT changed();
    });
}

bool RobotState::controllerConnected() const
{
    return brisa::ManagerHelper::instance()->taskNetworkManager()->isConnect();
}

bool RobotState::hubConnected() const
{
    return hubFlag()->getBool(false);
}

std::optional<bool> RobotState::powered() const
{
    return meaning(text(QStringLiteral("brisa.r.power")), QLatin1String("on"),
                   QLatin1String("off"));
}

std::optional<bool> RobotState::automatic() const
{
    return meaning(text(QStringLiteral("brisa.r.mode")), QLatin1String("auto"),
                   QLatin1String("manual"));
}

std::optional<bool> RobotState::running() const
{
    return meaning(text(QStringLiteral("brisa.r.state")), QLatin1String("program"),
                   QLatin1String("idle"));
}

std::optional<int> RobotState::userLevel() const
{
    ostrel::ModuleObject *const node = m(QStringLiteral("brisa.r.level"));
    if (!node->value().isValid())
        return std::nullopt;
    return node->getInt(0);
}

QString RobotState::identity() const
{
    return text(QStringLiteral("brisa.r.id"));
}

QString RobotState::robotType() const
{
    return text(QStringLiteral("brisa.setting.robot"));
}

QString RobotState::version() const
{
    return text(QStringLiteral("brisa.r.version"));
}

QString RobotState::text(const QString &key) const
{
    return m(key)->getStr(QString());
}

} // namespace panel
