#include <zeplet/interface/interfacemanager.h>

#include <zeplet/interface/hostmanagers_p.h>
#include <zeplet/interface/nodejson_p.h>

namespace zeplet
{

namespace
{

// The full-command forms carry their data in a node, which lives for the call.
class RequestNode
{
public:
    explicit RequestNode(const QJsonValue &data)
        : m_node(QStringLiteral("request"))
    {
        m_node.importFromJson(nullptr, data, true, true, false);
    }

    ostrel::ModuleObject *get() { return &m_node; }

private:
    ostrel::ModuleObject m_node;
};

} // namespace

bool InterfaceManager::rcRequest(const QString &module, const QString &command,
                                 const QJsonValue &data, int timeout)
{
    return controllerManager()->request(module, command, data, timeout);
}

QJsonValue InterfaceManager::rcExecRequest(const QString &module, const QString &command,
                                           const QJsonValue &data, bool wait, int timeout)
{
    return nodeToJson(controllerManager()->execRequest(module, command, data, wait, timeout));
}

bool InterfaceManager::rcRequestFullCommand(const QString &command, const QJsonValue &data,
                                            int timeout)
{
    RequestNode node(data);
    return controllerManager()->request(command, node.get(), timeout);
}

QJsonValue InterfaceManager::rcExecRequestFullCommand(const QString &command,
                                                      const QJsonValue &data, bool wait,
                                                      int timeout)
{
    RequestNode node(data);
    return nodeToJson(controllerManager()->execRequest(command, node.get(), wait, timeout));
}

} // namespace zeplet
