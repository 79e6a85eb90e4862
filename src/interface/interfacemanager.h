#pragma once

#include <zeplet/export.h>

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <functional>

namespace zeplet
{

/**
 * The one facade through which plugins reach the robot controller, its service hub and the host's
 * data. Everything belongs to the GUI thread; nothing throws. Timeouts are in milliseconds.
 */
class ZEPLET_EXPORT InterfaceManager : public QObject
{
    Q_OBJECT

public:
    /** Watches the links, and 100 ms later feeds the event bus. zepletInterface() makes the one
     *  object of the process. */
    explicit InterfaceManager(QObject *parent);
    ~InterfaceManager() override;

    /** Makes the event bus translate the host's changes into events. Called once by this object;
     *  a second call doubles every event. */
    void initEventSystem();

    /** @name Requests to the controller
     *  "module" names the controller module, "command" the dotted command in it; a full command is
     *  "module.command". */
    /** @{ */

    /** Sends without waiting for the answer; true when accepted. */
    bool rcRequest(const QString &module, const QString &command, const QJsonValue &data,
                   int timeout = 1600);
    /** Sends and, with wait, blocks until the answer or the timeout. The answer with all that it
     *  holds, or null where none came. */
    QJsonValue rcExecRequest(const QString &module, const QString &command, const QJsonValue &data,
                             bool wait = true, int timeout = 1600);
    /** rcRequest() with a full command. */
    bool rcRequestFullCommand(const QString &command, const QJsonValue &data, int timeout = 1600);
    /** rcExecRequest() with a full command. */
    QJsonValue rcExecRequestFullCommand(const QString &command, const QJsonValue &data,
                                        bool wait = true, int timeout = 1600);

    /** @} */

    /** @name The service hub and the host's data store */
    /** @{ */

    /** Whether the controller's link is up. */
    bool getRobotConnected();
    /** A node of the host's data store by its dotted key; null for a node without content. */
    QJsonValue getNodeData(const QString &key);
    /** The value of a hub key as the panel mirrors it; null when the link is down. At once. */
    QJsonValue getNexoData(const QString &key);
    /** The value of a part of a hub key, likewise. */
    QJsonValue getNexoData(const QString &key, const QString &subKey);
    /** Sends a value for a part of a hub key, without waiting. True says that the link was up, not
     *  that the hub took it. */
    bool setNexoData(const QString &key, const QString &subKey, const QVariant &value);
    /** Sends a value for a hub key, likewise. */
    bool setNexoData(const QString &key, const QVariant &value);
    /** Sends a command to the hub, likewise. */
    bool commandNexoData(const QString &key, const QVariant &value);
    /** Sends a command and blocks until the hub answers, the link is lost or the host's limit
     *  passes; null where no answer came. */
    QJsonValue execCommandNexoData(const QString &key, const QVariant &value);
    /** Sends a plugin command and blocks likewise; empty where no answer came. */
    QJsonArray commandCustomData(QObject *sender, const QJsonArray &data);
    /** Sends [obj], likewise. */
    QJsonArray commandCustomData(QObject *sender, const QJsonObject &obj);
    /** Sends [{key: obj}], likewise. */
    QJsonArray commandCustomData(QObject *sender, const QString &key, const QJsonObject &obj);
    /** Sends [{key: {subKey: value}}], likewise. */
    QJsonArray commandCustomData(QObject *sender, const QString &key, const QString &subKey,
                                 const QString &value);

    /** @} */

    /** @name Subscriptions
     *  Callbacks run as handlers of the event bus. "subscriber" is the plugin's name on the bus;
     *  "reserved" is ignored. */
    /** @{ */

    /** Calls back on changes of a hub key, and watches the key until everyone who connected it has
     *  disconnected it: ending the subscription on the bus alone does not end the watch. */
    bool connectNexoData(const QString &subscriber, const QString &serviceKey,
                         std::function<void(const QVariant &)> callback,
                         const QString &reserved = QString());
    /** Ends one subscription by its id on the bus, or, with an empty id, all of that key, also
     *  those of other plugins. Always true. */
    bool disconnectNexoData(const QString &subscriber, const QString &serviceKey,
                            const QString &subscriptionId);
    /** The same for notifications of the controller; an empty path is refused. */
    bool connectRcNotify(const QString &subscriber, const QString &notifyPath,
                         std::function<void(const QVariant &)> callback,
                         const QString &reserved = QString());
    /** Ends one subscription by its id, or all of that path, as disconnectNexoData() does. */
    bool disconnectRcNotify(const QString &subscriber, const QString &notifyPath,
                            const QString &subscriptionId);
    /** Calls back when the network came back (onConnect) or was lost, as long as context lives;
     *  without a context never. The subscription's id. */
    QString connectNetworkStatus(bool onConnect, const QString &subscriber, QObject *context,
                                 std::function<void()> callback,
                                 const QString &reserved = QString());
    /** Whether there was such a subscription. */
    bool disconnectNetworkStatus(bool onConnect, const QString &subscriber,
                                 const QString &subscriptionId);

    /** @} */

    /** @name Robot status and modes
     *  Readers look at the host's data, which follows the controller; a missing value gives the
     *  default that is named. */
    /** @{ */

    /** The controller's identity; empty when none is known. */
    QString getRobotID();
    /** Whether the motors are powered. */
    bool getRobotEleStatus();
    /** Whether the robot is in manual operation; an unknown mode counts as manual. */
    bool getRobotOperateIsHand();
    /** The run state, as the controller names it. */
    QString getRobotPhyStatus();
    /** The user's access level; 0 when unknown. */
    int getUserOperateLevel();
    /** The controller's address as the host is set. */
    QString getRobotIP();
    /** The robot's type, as the controller names it; empty when unknown. */
    QString getRobotType();
    /** The number of the robot model's template, out of the last answer to
     *  "system.controller.get_params"; 0 before. Nothing is asked. */
    int getRobotModelType();
    /** Switches the motors. blocking: waits up to 1600 ms, and true says that
     *  an answer came; otherwise true says that the request was accepted. */
    bool changeRobotPowerStatue(bool on, bool blocking);
    /** Switches to manual or to automatic operation, likewise. */
    bool changeRobotModelStatue(bool manual, bool blocking);

    /** @} */

    /** @name Program run control
     *  Requests to the host, which starts and stops the program. */
    /** @{ */

    /** Asks the host, from the event loop, to start the program; true when that is queued.
     *  False, with an error line, without a link. */
    bool startRunning();
    /** Asks the host to stop the program, likewise. */
    bool stopRunning();
    /** With the filter on, an operator's start waits until a plugin calls startRunning(). Always
     *  true. */
    bool startRunningFilter(bool on);
    /** With the filter on, an operator's stop waits until a plugin calls stopRunning(). Always
     *  true. */
    bool stopRunningFilter(bool on);

    /** @} */

    /** @name Projects
     *  Directories below the host's workspace. Names are trimmed first; a name that is not one
     *  plain path component is invalid. */
    /** @{ */

    /** The open project as "robot/name"; empty when none is. */
    QString getCurProject();
    /** The projects of this robot, in the order of the file system; none without a workspace. */
    QStringList getProjectList();
    /** Makes a project, and opens it if asked to. 0 done, -1 invalid name, -2 exists already, -3
     *  could not be made. Blocks for the disk. */
    int createProject(const QString &name, const QString &description, bool open);
    /** Opens a project. 0 done, -1 invalid name, -2 not found. */
    int changeProject(const QString &name);
    /** Removes a project with all that is in it, and its task; a link, and not its target. 0 done,
     *  -1 invalid name, -2 not found, -3 could not be removed. Blocks for the service hub, the disk
     *  and, for the autoload project, up to 1600 ms for the controller. */
    int removeProject(const QString &name);

    /** @} */

    /** @name IO signals and registers
     *  Signal types: 1 "DI", 2 "DO", 3 "GI", 4 "GO", 5 "AI", 6 "AO". */
    /** @{ */

    /** A signal's value as a bool, asked from the controller; false on every failure, with a log
     *  line. Blocks up to 1600 ms. */
    bool getIOValue(const QString &name);
    /** All signals with their values, asked likewise; empty on failure. */
    QHash<QString, QVariant> getIOHash();
    /** The names of all signals of a type, in the order of the catalogue; none, with an error line,
     *  for another number. */
    QStringList getIOByType(int type);
    /** The same by the type's name, in capital letters. */
    QStringList getIOByType(const QString &typeName);
    /** Sends a value without waiting. Always 0: system IO, and digital inputs outside simulation,
     *  are refused through the operator's banner. An unknown type is sent unchecked. */
    int setIOValue(const QString &name, int type, bool value);
    /** The same by the type's name. */
    int setIOValue(const QString &name, const QString &typeName, bool value);
    /** The registers as the host mirrors them: an array of {"name", "value": [text, ...]}. */
    QJsonValue getRegisterValue();
    /** The registers' values, as texts, by name. */
    QHash<QString, QStringList> getRegisterHash();

    /** @} */

    /** @name Tools, work objects, speeds and zones
     *  As the host mirrors them: system entries, then the project's, then global ones, with
     *  duplicates. */
    /** @{ */

    QString getCurTool(); ///< the selected tool; "tool0" where none is
    QString getCurWobj(); ///< the selected work object; "wobj0" where none is
    QStringList getToolList(); ///< the names of the tools
    QStringList getWobjList(); ///< the names of the work objects
    QStringList getSpeedList(); ///< the names of the speeds
    QStringList getZoneList(); ///< the names of the zones

    /** @} */

    /** @name Persistent variables
     *  For controllers of the versions 2.3, 3.0, 3.1 and 3.2; with others these give a log line and
     *  -240 or nothing. */
    /** @{ */

    /** Selects the variables to be monitored, in place of those before. 0 sent, -240 not for this
     *  controller's version. Does not wait. */
    int registPERSVars(const QVector<QString> &names);
    /** Sends a value for each name. 0 sent, -1 sizes differ or a number is not finite, -240 not for
     *  this controller's version. Does not wait. */
    int setValuesOfPERSVars(const QVector<QString> &names, const QVector<QVariant> &values);
    /** One text per name, empty where no value came. Blocks until the service hub answers. */
    QVector<QString> getValuesOfPERSVars(const QVector<QString> &names);
    /** The names that are selected; empty where none are known. At once. */
    QVector<QVariant> getRegistedPERSVars();

    /** @} */

    /** @name Points of the open project
     *  An element index has the form [i][j][k]; "" is [0][0][0], missing levels are 0. Millimetres
     *  and degrees. */
    /** @{ */

    /** The names of all points, in the order of the project. */
    QStringList getPointNameList();
    /** The element indexes of a point; empty if there is no such point. */
    QStringList getPointValueIndexList(const QString &name);
    /** The three declared dimensions, 0 for unused ones; empty if there is no such point. */
    QVector<int> getPointDimensions(const QString &name);
    /** The pose x, y, z, a, b, c of an element; empty, with an error line, where there is none. */
    QVector<double> getPointDataByName(const QString &name, const QString &index);
    /** The seven joint values of an element; empty, with an error line, where there are none. */
    QVector<double> getPointJointDataByName(const QString &name, const QString &index);
    /** The whole record of exactly that name; empty if there is none. */
    QJsonObject getPointObjDataByName(const QString &name);
    /** The robot's position as the controller reports it for a tool and a work object, by default
     *  the selected ones. Blocks up to 1600 ms; null where no answer came. */
    QJsonValue getCurrentPointData(const QString &tool, const QString &wobj);
    /** Whether two names are the same, to the letter. */
    bool checkPointSame(const QString &a, const QString &b);

    /** @} */

    /** @name Editing points
     *  Each edit changes the host's data, tells the controller, writes point.json and pushes it, in
     *  this order; true when all of it was done. Nothing is rolled back. Names are found whatever
     *  their case. Blocks for the controller, the disk and rsync (up to 30 s). */
    /** @{ */

    /** Adds a point with one empty element; false, too, if the name is taken. */
    bool createPoint(const QString &name, bool joint, bool persistent);
    /** Teaches the robot's position: into the element of an array point, else into a new point that
     *  takes the place of one of that name and moves to the end. */
    bool addCurrentPoint(const QString &name, bool joint, const QString &tool, const QString &wobj,
                         const QString &index);
    /** Writes x, y, z, a, b, c into an element. */
    bool setPointCartData(const QString &name, const QVector<double> &pose, const QString &index);
    /** Writes up to seven joint values; missing ones become 0. */
    bool setPointJointData(const QString &name, const QVector<double> &joints,
                           const QString &index);
    /** Puts an object in the place of an element, which is made where it is missing. */
    bool setPointElementJson(const QString &name, const QString &index, const QJsonObject &element);
    /** Makes sure that an element exists: a copy of the first one. */
    bool ensurePointElement(const QString &name, const QString &index);
    /** Deletes a point, if the controller agrees. */
    bool removePoint(const QString &name);
    /** Deletes an element; with the last one, the point. */
    bool removePointElement(const QString &name, const QString &index);

    /** @} */

    /** @name Motion to a point
     *  To its first element, taken as a Cartesian pose. */
    /** @{ */

    /** Sends the robot to a point at speed mm/s. result: 0 sent, -1 no such point or element, or
     *  one that is no position, -2
     *  the arm configuration is missing, which useConf and joint motion need. What goes wrong on
     *  the way is told on the hub key "move.last_error_with_setting". Blocks for one command. */
    void moveToStart(int &result, const QString &name, int speed, bool useConf, bool joint);
    /** The same with useConf. */
    void moveToStart(int &result, const QString &name, int speed, bool joint);
    /** Stops that motion, and listens no longer for what goes wrong. Does not wait. */
    void moveToStop();
    /** 1 for equal names, 0 where the path is allowed, -2 where it is not, or no answer came.
     * Blocks for the hub. */
    int checkPointMoveTo(const QString &from, const QString &to);

    /** @} */

    /** @name Program variables of the open project
     *  They are found by their exact name. Each change goes to the host's data, the controller,
     *  var.json and its copy there; what the controller refuses is undone. True when all of it was
     *  done. Blocks for the service hub, the disk and rsync (up to 30 s). */
    /** @{ */

    /** The whole record; empty if there is none. */
    QJsonObject getVarObjDataByName(const QString &name);
    /** The names of the variables of a type; of all with an empty one. */
    QStringList getVarDataList(const QString &type);
    /** Adds a variable, whose type is that of the value; false, too, if the name is taken. */
    bool addVarData(const QString &name, const QVariant &value, bool persistent);
    /** Gives a variable, which is no connection, another value. Its type stays. */
    bool updateVarData(const QString &name, const QVariant &value);
    /** Deletes those of the named variables that are no connections; false if there are none. */
    bool delVarData(const QStringList &names);
    /** Deletes one variable, likewise. */
    bool delVarData(const QString &name);

    /** @} */

Q_SIGNALS:
    /** After a loss, controller and service hub are both connected again. Not emitted where the hub
     *  never dropped: look at getRobotConnected() then. */
    void sigNetworkConnect();
    /** The controller's link was lost; status: on purpose by this side. */
    void sigNetworkDisConnect(bool status);

private:
    friend class InterfaceWatches;
    class InterfaceManagerPrivate;
    InterfaceManagerPrivate *d;
};

/** The process-wide facade; made on the first call, which is safe from any thread but belongs on
 *  the GUI thread. It lives to the end of the process. */
ZEPLET_EXPORT InterfaceManager *zepletInterface();

/** Whether the controller's version begins with this text, letter by letter: "2.1" fits "2.10.3",
 *  and an empty text fits all. GUI thread. */
ZEPLET_EXPORT bool checkBrisaVersion(const QString &version);

} // namespace zeplet
