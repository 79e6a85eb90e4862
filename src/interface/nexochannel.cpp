#include <zeplet/interface/interfacemanager.h>

#include <brisa/managerhelper.h>
#include <brisa/tasknetworkmanager.h>
#include <nexo/nexo.h>
#include <zeplet/interface/nodejson_p.h>
#include <zeplet/log/hostlines_p.h>
#include <zeplet/log/jsontext_p.h>

namespace zeplet
{

// Tells the plugin commands of a process apart; 0 to 254, then again from 0.
static int CustomIndex = 0;

namespace
{

const QString pluginService = QStringLiteral("ServiceAPI.plugin");

QString nextCommandId()
{
    if (CustomIndex > 254)
        CustomIndex = 0;
    return QStringLiteral("%1_%2").arg(pluginService, QString::number(CustomIndex++));
}

void writeCommandLine(const QString &direction, const QJsonValue &data)
{
    statusLine() << direction << QStringLiteral("zeplet::command : ") << jsonText(data);
}

} // namespace

bool InterfaceManager::getRobotConnected()
{
    return brisa::ManagerHelper::instance()->taskNetworkManager()->isConnect();
}

QJsonValue InterfaceManager::getNodeData(const QString &key)
{
    return nodeToJson(m(key, nullptr));
}

QJsonValue InterfaceManager::getNexoData(const QString &key)
{
    return getRobotConnected() ? nodeToJson(nexo()->get(nullptr, key)) : QJsonValue();
}

QJsonValue InterfaceManager::getNexoData(const QString &key, const QString &subKey)
{
    return getRobotConnected() ? nodeToJson(nexo()->get(nullptr, key, subKey)) : QJsonValue();
}

bool InterfaceManager::setNexoData(const QString &key, const QString &subKey, const QVariant &value)
{
    if (!getRobotConnected())
        return false;
    nexo()->set(nullptr, key, subKey, value);
    return true;
}

bool InterfaceManager::setNexoData(const QString &key, const QVariant &value)
{
    return setNexoData(key, QString(), value);
}

bool InterfaceManager::commandNexoData(const QString &key, const QVariant &value)
{
    if (!getRobotConnected())
        return false;
    nexo()->command(nullptr, key, value);
    return true;
}

QJsonValue InterfaceManager::execCommandNexoData(const QString &key, const QVariant &value)
{
    if (!getRobotConnected())
        return QJsonValue();
    return nodeToJson(nexo()->execCommand(nullptr, key, value));
}

QJsonArray InterfaceManager::commandCustomData(QObject *sender, const QJsonArray &data)
{
    writeCommandLine(QStringLiteral("send : "), data);
    ostrel::ModuleObject *answer
        = nexo()->execPluginCommand(sender, nextCommandId(), pluginService, QVariant(data));
    const QJsonValue result = nodeToJson(answer ? answer->r(QStringLiteral("data")) : nullptr);
    writeCommandLine(QStringLiteral("ret : "), result);
    return result.toArray();
}

QJsonArray InterfaceManager::commandCustomData(QObject *sender, const QJsonObject &obj)
{
    return commandCustomData(sender, QJsonArray {obj});
}

QJsonArray InterfaceManager::commandCustomData(QObject *sender, const QString &key,
                                               const QJsonObject &obj)
{
    return commandCustomData(sender, QJsonObject {{key, obj}});
}

QJsonArray InterfaceManager::commandCustomData(QObject *sender, const QString &key,
                                               const QString &subKey, const QString &value)
{
    return commandCustomData(sender, key, QJsonObject {{subKey, value}});
}

} // namespace zeplet
