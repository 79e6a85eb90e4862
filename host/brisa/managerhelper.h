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
 *  the end of the process: it is never destroyed, so that other singletons may use it in their own
 *  destructors. */
class HOST_EXPORT ManagerHelper : public QObject
{
    Q_OBJECT

public:
    /** The one object; never null. */
    static ManagerHelper *instance();
    ~ManagerHelper() override;

    /** The requests to the controller; never null. */
    ControllerManager *controllerManager() const;
    /** The host's settings; never null. */
    SettingManager *settingManager() const;
    /** The state of both links; never null. */
    TaskNetworkManager *taskNetworkManager() const;
    /** The process-wide theme manager; never null. */
    ThemeManager *themeManager() const;

    /** Makes the resources below ":/name/" reachable to the host's style sheets by that alias, as
     *  in url(name:icon.svg). A name needs two characters and holds letters, digits and "_-" only;
     *  another gives a log line. */
    void registQrcAlias(const QString &name);

    /** Shows a message in the host's log banner; level is "info", "warning" or "error". From any
     *  thread: from another than the GUI thread it is shown later. */
    static void throwLog(QObject *sender, const QString &level, const QString &message);

    /**
     * Connects to the controller and to its service hub where "server.ip", "server.port" and
     * "server.hub_port" say, and stays connected; again with each change of one of them. An address
     * that is none gives a log line and no link.
     */
    void openLinks();
    /**
     * Closes both links on purpose and joins the host's I/O thread. To be called before the
     * application ends; does nothing where no link was ever opened.
     */
    static void shutdown();

    /** The host is up: its settings are read and its UI stands. */
    bool isReady() const;
    /** For the panel, when it is up and before it goes. */
    void setReady(bool ready);

Q_SIGNALS:
    /** throwLog() was called; on the GUI thread. */
    void logThrown(QObject *sender, const QString &level, const QString &message);

private:
    ManagerHelper();
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace brisa
