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

class QUrl;

namespace brisa
{

/**
 * The controller as the host sees it: commands go out, answers and notifications come in as data
 * nodes. A full command name is "module.command". Nodes that it returns belong to it: the answer
 * node of a command is cached, and holds until the next answer to that command. Each cached node is
 * the root of a tree of its own, so that "a" and "a.b" are apart.
 *
 * It mirrors the controller's state into the data store ("brisa.r.power", "mode", "state", "level",
 * "id", "version", and "brisa.setting.robot"): a value is set when it differs. After a loss the
 * last values stay, until they are read again with the next connection. An identity that can't
 * name a directory counts as unknown, with a word to the operator.
 *
 * GUI thread. Answers and notifications are delivered there, in order; what a receiver throws is
 * caught and logged.
 */
class HOST_EXPORT ControllerManager : public QObject
{
    Q_OBJECT

public:
    explicit ControllerManager(QObject *parent = nullptr);
    ~ControllerManager() override;

    /** Connects to the endpoint (ws://...) and stays connected until close(). */
    void open(const QUrl &url);
    /** Ends the link on purpose. */
    void close();

    /** From rcConnected() to rcDisconnected(). */
    bool isConnected() const;

    /**
     * Sends without waiting; true when accepted: there is a link, the frame is no larger than
     * 16 MiB, and fewer than 1024 requests wait. The answer comes into the command's "response"
     * node, which emits changed(); a refusal is logged, see requestFailed(). timeout in ms (0 or
     * less: 4800): a later answer is dropped. data that is null is left out.
     */
    bool request(const QString &module, const QString &command, const QJsonValue &data,
                 int timeout);
    /** The same by full name. A null node means the command's cached request node. */
    bool request(const QString &command, ostrel::ModuleObject *node, int timeout);

    /**
     * Sends and, with wait, blocks up to timeout ms without an event loop: nothing else is
     * delivered meanwhile. The answer is the command's "response" node, which does not emit
     * changed() for it. Null on a time-out, on a refusal, which is logged with its reason, and
     * without a link. Without wait: as request(), and returns the answer before it; null where
     * there is none.
     */
    ostrel::ModuleObject *execRequest(const QString &module, const QString &command,
                                      const QJsonValue &data, bool wait, int timeout);
    ostrel::ModuleObject *execRequest(const QString &command, ostrel::ModuleObject *node, bool wait,
                                      int timeout);

    /** The cached node of a command or path; group is "request", "response" or "notify". A notify
     *  node emits changed() once on each notification of the controller, also of an equal value,
     * from the time it was first asked for. Any other group is logged and gives an empty node.
     * Never null. */
    ostrel::ModuleObject *cmdItemMobj(const QString &group, const QString &path);

Q_SIGNALS:
    /** The controller is connected and its state is in the data store. */
    void rcConnected();
    /** The link was lost; expected: it was closed on purpose by this side. */
    void rcDisconnected(bool expected);
    /** A request without waiting came to no result; reason is one line, what the controller wrote
     *  where it refused. Not refused: it may have been carried out. */
    void requestFailed(const QString &command, const QString &reason, bool refused);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace brisa
