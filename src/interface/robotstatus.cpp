#include <zeplet/interface/interfacemanager.h>

#include <brisa/settingmanager.h>
#include <ostrel/moduleobject.h>
#include <zeplet/interface/hostmanagers_p.h>

namespace zeplet
{

namespace
{

constexpr int answerTimeoutMs = 1600;
constexpr int requestTimeoutMs = 4800;

QString storedText(const QString &key)
{
    return m(key, nullptr)->getStr(QString());
}

// blocking: whether an answer came; otherwise whether the request was accepted.
bool send(const QString &command, bool blocking)
{
    if (blocking)
        return controllerManager()->execRequest(command, nullptr, true, answerTimeoutMs);
    return controllerManager()->request(command, nullptr, requestTimeoutMs);
}

} // namespace

QString InterfaceManager::getRobotID()
{
    return storedText(QStringLiteral("brisa.r.id"));
}

bool InterfaceManager::getRobotEleStatus()
{
    return storedText(QStringLiteral("brisa.r.power")) == QLatin1String("on");
}

bool InterfaceManager::getRobotOperateIsHand()
{
    return storedText(QStringLiteral("brisa.r.mode")) != QLatin1String("auto");
}

QString InterfaceManager::getRobotPhyStatus()
{
    return storedText(QStringLiteral("brisa.r.state"));
}

int InterfaceManager::getUserOperateLevel()
{
    return m(QStringLiteral("brisa.r.level"), nullptr)->getInt(0);
}

QString InterfaceManager::getRobotIP()
{
    return brisa::ManagerHelper::instance()->settingManager()->getStr(QStringLiteral("server.ip"),
                                                                      QString());
}

QString InterfaceManager::getRobotType()
{
    return storedText(QStringLiteral("brisa.setting.robot"));
}

int InterfaceManager::getRobotModelType()
{
    const ostrel::ModuleObject *answer = controllerManager()->cmdItemMobj(
        QStringLiteral("response"), QStringLiteral("system.controller.get_params"));
    return answer ? answer->getInt(QStringLiteral("robot_template"), 0) : 0;
}

bool InterfaceManager::changeRobotPowerStatue(bool on, bool blocking)
{
    return send(QStringLiteral("system.state.switch_motor_%1")
                    .arg(on ? QStringLiteral("on") : QStringLiteral("off")),
                blocking);
}

bool InterfaceManager::changeRobotModelStatue(bool manual, bool blocking)
{
    return send(QStringLiteral("system.state.switch_%1")
                    .arg(manual ? QStringLiteral("manual") : QStringLiteral("auto")),
                blocking);
}

bool checkBrisaVersion(const QString &version)
{
    // A null text starts with nothing, not even with an empty one.
    return version.isEmpty() || storedText(QStringLiteral("brisa.r.version")).startsWith(version);
}

} // namespace zeplet
