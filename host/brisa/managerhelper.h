#pragma once

#include "hostexport.h"

#include <QObject>
#include <QString>
#include <memory>

namespace brisa
{

class ControllerManager;
class SettingManager;
class TaskNetworkManager;
class ThemeManager;

/** Where the host's managers meet: one object, made on first use on the GUI thread, which lives to
 *  the end of the process. */
class HOST_EXPORT ManagerHelper : public QObject
{
    Q_OBJECT

public:
    static ManagerHelper *instance();
    ~ManagerHelper() override;

    ControllerManager *controllerManager() const;
    SettingManager *settingManager() const;
    TaskNetworkManager *taskNetworkManager() const;
    ThemeManager *themeManager() const;

    /** Makes the resources below ":/name/" reachable to the host's style sheets by that alias. */
    void registQrcAlias(const QString &name);

    /** Shows a message in the host's log banner; level is "info", "warning" or "error". */
    static void throwLog(QObject *sender, const QString &level, const QString &message);

    /** The host is up: its settings are read and its UI stands. */
    bool isReady() const;
    void setReady(bool ready);

Q_SIGNALS:
    void logThrown(QObject *sender, const QString &level, const QString &message);

private:
    ManagerHelper();
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace brisa
