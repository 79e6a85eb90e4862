#pragma once

#include <zeplet/interface/interfacemanager.h>

#include <QList>
#include <QMap>
#include <QMetaObject>
#include <QString>
#include <QStringList>

namespace ostrel
{
class ModuleObject;
}

namespace zeplet
{

class InterfaceManager::InterfaceManagerPrivate
{
public:
    using Connections = QMap<QString, QMetaObject::Connection>;
    using Subscriptions = QMap<QString, QList<QString>>;

    explicit InterfaceManagerPrivate(InterfaceManager *manager)
        : q(manager)
    {
    }

    /** Emits the manager's two signals; latch is kept by the caller for the process. */
    void watchConnections(bool &latch);

    /** Publish changes of a hub key or a notify path on the bus; invalid without a node. */
    QMetaObject::Connection publishHubKey(const QString &serviceKey);
    QMetaObject::Connection publishNotifyPath(const QString &notifyPath);

    /** Asks the hub for the errors of a motion, or does so no longer. */
    void watchMotionErrors(bool on);

    /** name and a number that no task of this process had before. */
    QString createTaskId(const QString &name);

    /** Tells the controller of new ("add") or changed ("edit") variables at these places of the
     *  list; an edit names what each was called before. True when the controller took them. */
    bool hotUpdateVar(const QString &operation, const QList<int> &indexes,
                      const QStringList &oldNames);
    /** Has the controller give up variables; true when it agreed. */
    bool hotRemoveVar(const QList<ostrel::ModuleObject *> &records);
    /** Writes var.json of the open project and pushes it. */
    bool saveAndPushVar();

    Connections nexoConnections; ///< per service key
    Subscriptions nexoSubscriptions; ///< per service key, ids on the bus
    Connections rcNotifyConnections; ///< per notify path
    Subscriptions rcNotifySubscriptions; ///< per notify path, ids on the bus
    bool motionErrorsWatched = false;
    InterfaceManager *q;
};

} // namespace zeplet
