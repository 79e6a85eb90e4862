#pragma once

#include "hostexport.h"

#include <QJsonValue>
#include <QObject>
#include <QString>
#include <QVariant>
#include <functional>
#include <memory>

namespace ostrel
{
class ModuleObject;
}

class QUrl;

/**
 * The controller's service hub as the host sees it. The host keeps a mirror of the hub's keys; all
 * nodes belong to the host. GUI thread. Changes are delivered there, in order; what a receiver
 * throws is caught and logged. origin tells watches apart and is otherwise not used.
 */
class HOST_EXPORT Nexo : public QObject
{
    Q_OBJECT

public:
    explicit Nexo(QObject *parent = nullptr);
    ~Nexo() override;

    /** Connects to the endpoint (ws://...) and stays connected until close(). */
    void open(const QUrl &url);
    /** Ends the link on purpose. */
    void close();

    /** The mirrored node of a key, for reading; answers at once. It does not emit changed(): that
     * is for watchNode(). The last values stay while the hub is away. Never null. */
    ostrel::ModuleObject *get(QObject *origin, const QString &key);
    ostrel::ModuleObject *get(QObject *origin, const QString &key, const QString &subKey);

    /** Sends a new value; the mirror follows when the hub confirms it. What can't be sent, and a
     *  refusal, is logged. */
    void set(QObject *origin, const QString &key, const QString &subKey, const QVariant &value);
    void set(QObject *origin, const QString &key, ostrel::ModuleObject *node);

    /** Sends a command without waiting. What can't be sent, and a refusal, is logged. */
    void command(QObject *origin, const QString &key, const QVariant &value = QVariant());
    void command(QObject *origin, const QString &key, ostrel::ModuleObject *node);

    /**
     * The same two, and done is called once, later: with the answer, or with a problem, one line,
     * where none came. False, with a log line and without done, where it can't be sent.
     */
    using Done = std::function<void(const QJsonValue &answer, const QString &problem)>;
    bool set(QObject *origin, const QString &key, const QJsonValue &value, const Done &done);
    bool command(QObject *origin, const QString &key, const QJsonValue &value, const Done &done);

    /** Sends a command and blocks until the hub answers, the link is lost, or the host's limit
     *  ("nexo.limit", 30 s) passes; null in the last two cases, and on a refusal, which is logged.
     *  The answer node holds until the next answer to the same command. */
    ostrel::ModuleObject *execCommand(QObject *origin, const QString &key,
                                      const QVariant &value = QVariant());
    ostrel::ModuleObject *execCommand(QObject *origin, const QString &key,
                                      ostrel::ModuleObject *node);
    /** The same for a plugin's command; the answer node has a child "data". */
    ostrel::ModuleObject *execPluginCommand(QObject *origin, const QString &id,
                                            const QString &command, const QVariant &value);

    /**
     * Starts or stops change delivery for a key. A watch is on or off per origin and key, however
     * often it is set; a null origin is one of its own, and a destroyed origin's watches are off.
     * Changes are delivered while any watch of the key is on.
     */
    void watch(QObject *origin, const QString &key, bool on);
    /**
     * The local node that follows the key, the root of a tree of its own. It emits changed() when
     * the hub's value differs from the one before and the key is watched, also where a key above
     * or below it was set. Lives as long as this object, and while the hub is away. Never null.
     */
    ostrel::ModuleObject *watchNode(const QString &key);

    /** The hub module's data node ("nexo"); its child "connected" is a bool that is set only when
     *  it changes, and true once the hub's keys are mirrored. */
    ostrel::ModuleObject *mobj();

private:
    class Private;
    std::unique_ptr<Private> d;
};

/** The process-wide hub, made on first use, which lives to the end of the process. */
HOST_EXPORT Nexo *nexo();
