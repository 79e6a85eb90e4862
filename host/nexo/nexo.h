#pragma once

#include "hostexport.h"

#include <QObject>
#include <QString>
#include <QVariant>
#include <memory>

namespace ostrel
{
class ModuleObject;
}

/**
 * The controller's service hub as the host sees it. The host keeps a mirror of the hub's keys; all
 * nodes belong to the host. GUI thread.
 */
class HOST_EXPORT Nexo : public QObject
{
    Q_OBJECT

public:
    explicit Nexo(QObject *parent = nullptr);
    ~Nexo() override;

    /** The mirrored node of a key; answers at once. Never null. */
    ostrel::ModuleObject *get(QObject *origin, const QString &key);
    ostrel::ModuleObject *get(QObject *origin, const QString &key, const QString &subKey);

    /** Sends a new value; the mirror follows when the hub confirms it. */
    void set(QObject *origin, const QString &key, const QString &subKey, const QVariant &value);
    void set(QObject *origin, const QString &key, ostrel::ModuleObject *node);

    /** Sends a command without waiting. */
    void command(QObject *origin, const QString &key, const QVariant &value = QVariant());
    void command(QObject *origin, const QString &key, ostrel::ModuleObject *node);

    /** Sends a command and blocks until the hub answers, the link is lost, or the host's limit
     *  ("nexo.limit", 30 s) passes; null in the last two cases. */
    ostrel::ModuleObject *execCommand(QObject *origin, const QString &key,
                                      const QVariant &value = QVariant());
    ostrel::ModuleObject *execCommand(QObject *origin, const QString &key,
                                      ostrel::ModuleObject *node);
    /** The same for a plugin's command; the answer node has a child "data". */
    ostrel::ModuleObject *execPluginCommand(QObject *origin, const QString &id,
                                            const QString &command, const QVariant &value);

    /** Starts or stops change delivery for a key. */
    void watch(QObject *origin, const QString &key, bool on);
    /** The local node that mirrors the key; emits changed() while the key is watched. */
    ostrel::ModuleObject *watchNode(const QString &key);

    /** The hub module's data node ("nexo"); its child "connected" is a bool. */
    ostrel::ModuleObject *mobj();

private:
    class Private;
    std::unique_ptr<Private> d;
};

/** The process-wide hub, made on first use. */
HOST_EXPORT Nexo *nexo();
