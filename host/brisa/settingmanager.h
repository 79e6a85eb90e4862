#pragma once

#include "hostexport.h"

#include <QObject>
#include <QString>

namespace brisa
{

/** The host's settings ("server.ip", "workspace", "theme", "language", ...), kept in a JSON file
 *  that a person can read and edit. GUI thread. */
class HOST_EXPORT SettingManager : public QObject
{
    Q_OBJECT

public:
    explicit SettingManager(QObject *parent = nullptr);

    QString getStr(const QString &key, const QString &defaultValue) const;
};

} // namespace brisa
