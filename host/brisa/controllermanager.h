#pragma once

#include "hostexport.h"

#include <QJsonValue>
#include <QObject>
#include <QString>
#include <memory>

namespace ostrel
{
class ModuleObject;
}

namespace brisa
{

/**
 * The controller as the host sees it: commands go out, answers and notifications come in as data
 * nodes. A full command name is "module.command". Nodes that it returns belong to it: the answer
 * node of a command is cached, and holds until the next answer to that command. GUI thread.
 */
class HOST_EXPORT ControllerManager : public QObject
{
    Q_OBJECT

public:
    explicit ControllerManager(QObject *parent = nullptr);
    ~ControllerManager() override;

    bool isConnected() const;

    /** Sends without waiting; true when accepted. timeout in ms: a later answer is dropped. */
    bool request(const QString &module, const QString &command, const QJsonValue &data,
                 int timeout);
    /** The same by full name. A null node means the command's cached request node. */
    bool request(const QString &command, ostrel::ModuleObject *node, int timeout);

    /** Sends and, with wait, blocks up to timeout ms without an event loop. Null on time-out, on
     *  a refusal and on a lost link. Without wait: sends and returns the last cached answer. */
    ostrel::ModuleObject *execRequest(const QString &module, const QString &command,
                                      const QJsonValue &data, bool wait, int timeout);
    ostrel::ModuleObject *execRequest(const QString &command, ostrel::ModuleObject *node,
                                      bool wait, int timeout);

    /** The cached node of a command or path; group is "request", "response" or "notify". A notify
     *  node emits changed() on each notification of the controller. Never null. */
    ostrel::ModuleObject *cmdItemMobj(const QString &group, const QString &path);

Q_SIGNALS:
    void rcConnected();
    /** The link was lost; expected: it was closed on purpose by this side. */
    void rcDisconnected(bool expected);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace brisa
