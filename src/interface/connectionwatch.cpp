#include <zeplet/interface/interfacemanager_p.h>

#include <nexo/nexo.h>
#include <ostrel/moduleobject.h>
#include <zeplet/interface/hostmanagers_p.h>

namespace zeplet
{

namespace
{

ostrel::ModuleObject *hubConnected()
{
    return nexo()->mobj()->r(QStringLiteral("connected"));
}

} // namespace

// A latch: after a loss, the first of the two links that comes up only arms it, and the second one
// reports the network. Where the hub never dropped, the controller's return reports nothing.
void InterfaceManager::InterfaceManagerPrivate::watchConnections(bool &latch)
{
    connect(controllerManager(), &brisa::ControllerManager::rcConnected, q, [this, &latch] {
        if (hubConnected()->getBool(false) && latch)
            Q_EMIT q->sigNetworkConnect();
        latch = true;
    });
    connect(controllerManager(), &brisa::ControllerManager::rcDisconnected, q,
            [this, &latch](bool status) {
                Q_EMIT q->sigNetworkDisConnect(status);
                latch = false;
            });
    connect(hubConnected(), &ostrel::ModuleObject::changed, q, [this, &latch](const QVariant &up) {
        if (!up.toBool()) {
            latch = false;
            return;
        }
        if (controllerManager()->isConnected() && latch)
            Q_EMIT q->sigNetworkConnect();
        latch = true;
    });
}

} // namespace zeplet
