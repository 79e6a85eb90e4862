#include <zeplet/interface/interfacemanager.h>

#include <zeplet/events/zepleteventsystem.h>
#include <zeplet/interface/interfacemanager_p.h>

#include <QTimer>

namespace zeplet
{

namespace
{
// Long enough for the host to finish what it is starting.
constexpr int bridgeDelayMs = 100;
} // namespace

InterfaceManager::InterfaceManager(QObject *parent)
    : QObject(parent)
    , d(new InterfaceManagerPrivate(this))
{
    static bool isConnect = false;
    d->watchConnections(isConnect);
    QTimer::singleShot(bridgeDelayMs, this, &InterfaceManager::initEventSystem);
}

// The private record stays: static destructors that run later may still read it.
InterfaceManager::~InterfaceManager() = default;

void InterfaceManager::initEventSystem()
{
    zepletEvent()->registerAllEvents();
}

QString InterfaceManager::InterfaceManagerPrivate::createTaskId(const QString &name)
{
    static int taskId = 0;
    return name + QStringLiteral("_%1").arg(++taskId);
}

InterfaceManager *zepletInterface()
{
    static InterfaceManager manager(nullptr);
    return &manager;
}

} // namespace zeplet
