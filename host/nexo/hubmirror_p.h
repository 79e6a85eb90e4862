#pragma once

#include <QJsonValue>
#include <QMap>
#include <QObject>
#include <QString>
#include <functional>

namespace ostrel
{
class ModuleObject;
}

/**
 * The hub's keys in the data store, and the nodes that follow single keys of them. The former
 * change silently; the latter emit changed() where the owner says so, once for each difference. GUI
 * thread.
 */
class HubMirror : public QObject
{
    Q_OBJECT

public:
    using IsWatched = std::function<bool(const QString &key)>;

    /** root is the node below which the keys are mirrored. */
    HubMirror(ostrel::ModuleObject *root, const IsWatched &isWatched, QObject *parent = nullptr);

    /** A dotted name without empty parts. */
    static bool isKey(const QString &key);

    /** The hub's keys as a whole: what is missing there goes here. */
    void replace(const QJsonObject &snapshot);
    /** One key's new value. */
    void set(const QString &key, const QJsonValue &value);

    ostrel::ModuleObject *node(const QString &key);
    /** The node that follows the key; owned by the mirror. */
    ostrel::ModuleObject *follower(const QString &key);

private:
    void follow(const QString &key, ostrel::ModuleObject *follower);
    void followAbove(const QString &key);
    void followBelow(const QString &key);

    ostrel::ModuleObject *m_root;
    IsWatched m_isWatched;
    QMap<QString, ostrel::ModuleObject *> m_followers; ///< ordered: keys below "a" stand together
};
