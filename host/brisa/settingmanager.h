#pragma once

#include "hostexport.h"

#include <QJsonObject>
#include <QObject>
#include <QString>

namespace brisa
{

/**
 * The host's settings, kept in one JSON file that a person can read and edit: an object with one
 * flat member per setting, as in {"server.ip": "192.168.1.5", "theme": "dark"}.
 *
 * Settings of the host, with their defaults: "server.ip" (text, "127.0.0.1"), "server.port" (9011),
 * "server.hub_port" (9012), "nexo.limit" (seconds that a waiting hub command may take, 30).
 * Members that the host does not know are kept. GUI thread; set() blocks for the disk.
 */
class HOST_EXPORT SettingManager : public QObject
{
    Q_OBJECT

public:
    /** Holds the host's defaults. Belongs to the parent, if there is one. */
    explicit SettingManager(QObject *parent = nullptr);

    /**
     * Reads the file, and saves to it from then on. A file that is missing is fine. One that is no
     * JSON object gives a log line and false: the defaults hold, and the file stays as it is, so
     * that a person can mend it; nothing is saved over it.
     */
    bool load(const QString &path);

    /** Whether the setting has a value, be it the host's default. */
    bool contains(const QString &key) const;
    /** A text; a number or a bool in its JSON spelling. Where the setting is missing
     *  or anything else: the host's own default if it has one, else defaultValue. */
    QString getStr(const QString &key, const QString &defaultValue) const;
    /** As getStr(); a text that spells a number counts. Anything else gives the default. */
    int getInt(const QString &key, int defaultValue) const;
    /** As getInt(), for any number. */
    double getDouble(const QString &key, double defaultValue) const;
    /** As getInt(), for a bool. */
    bool getBool(const QString &key, bool defaultValue) const;

    /** Changes a setting and saves it; what a person changed in the file meanwhile stays. False,
     *  with a log line, where it could not be saved: it then holds until the end of the process. */
    bool set(const QString &key, const QJsonValue &value);

Q_SIGNALS:
    /** set() has given the setting another value. */
    void changed(const QString &key);

private:
    QJsonValue value(const QString &key) const;
    bool save(const QString &key, const QJsonValue &value);

    QString m_path; ///< empty: settings are not saved
    QJsonObject m_values;
};

} // namespace brisa
