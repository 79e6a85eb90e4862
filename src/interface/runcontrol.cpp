#include <zeplet/interface/interfacemanager.h>

#include <ostrel/moduleobject.h>
#include <zeplet/log/hostlines_p.h>

namespace zeplet
{

namespace
{

// The empty text in between lets the host see a change even where the request is the same again.
void writeRunState(const QString &operation, const QString &state)
{
    ostrel::ModuleObject *const node = m(QStringLiteral("brisa.r.zeplet.state"), nullptr);
    if (!node || node->isNull()) {
        errorLine() << operation << QStringLiteral(": brisa.r.zeplet.state missing");
        return;
    }
    if (!node->getStr(QString()).isEmpty())
        node->set(nullptr, QString());
    node->set(nullptr, state);
}

// Never carried out in the caller's stack: the host may start or stop much in answer.
bool queueRunState(InterfaceManager *manager, const QString &operation, const QString &state)
{
    if (!manager->getRobotConnected()) {
        errorLine() << operation << QStringLiteral(": rc not connected");
        return false;
    }
    const bool queued = QMetaObject::invokeMethod(
        manager, [operation, state] { writeRunState(operation, state); }, Qt::QueuedConnection);
    if (!queued)
        errorLine() << operation << QStringLiteral(": invokeMethod failed");
    return queued;
}

} // namespace

bool InterfaceManager::startRunning()
{
    return queueRunState(this, QStringLiteral("startRunning"), QStringLiteral("run"));
}

bool InterfaceManager::stopRunning()
{
    return queueRunState(this, QStringLiteral("stopRunning"), QStringLiteral("stop"));
}

bool InterfaceManager::startRunningFilter(bool on)
{
    m(QStringLiteral("brisa.r.zeplet.filter.run"), nullptr)->set(nullptr, on);
    return true;
}

bool InterfaceManager::stopRunningFilter(bool on)
{
    m(QStringLiteral("brisa.r.zeplet.filter.stop"), nullptr)->set(nullptr, on);
    return true;
}

} // namespace zeplet
