#pragma once

#include <QMap>
#include <QObject>
#include <QString>

/**
 * What the person asked the plugin to watch: hub keys and notify paths. A watch only starts the
 * delivery; the values arrive on the event bus like every other event.
 */
class WatchList : public QObject
{
    Q_OBJECT

public:
    enum Kind { HubKey, NotifyPath };

    explicit WatchList(const QString &pluginName, QObject *parent = nullptr);
    /** Ends all watches. */
    ~WatchList() override;

    /** Starts a watch; false for an empty name, one that is watched already, or a refusal. */
    bool add(Kind kind, const QString &name);
    void remove(Kind kind, const QString &name);

private:
    QString connectWatch(Kind kind, const QString &name);

    QString m_pluginName;
    QMap<QPair<Kind, QString>, QString> m_subscriptions; ///< what is watched, with its id
};
