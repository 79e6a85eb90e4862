#pragma once

#include "answers.h"
#include "faults.h"
#include "fileserver.h"
#include "frames.h"
#include "hubdata.h"
#include "iosignals.h"
#include "motion.h"
#include "projects.h"
#include "registers.h"
#include "reply.h"
#include "requestlog.h"
#include "robotstate.h"
#include "scenario.h"
#include "variables.h"

#include <QObject>
#include <memory>

namespace simulator
{

/**
 * A controller with its service hub, played on two WebSocket servers on loopback. State and faults
 * outlive clients and servers: stop() and start() leave them as they are. All members belong to the
 * thread on which the simulator was made; none blocks, but that one with files waits until its
 * rsync daemon has started or ended (some milliseconds, at most seconds).
 */
class Simulator : public QObject
{
    Q_OBJECT

public:
    explicit Simulator(const Scenario &scenario = {}, QObject *parent = nullptr);
    ~Simulator() override;

    /** Opens both servers, and the files' one; the first call also starts the scenario's timeline.
     * Port 0: the one of the former start, or else any free one. False with the reason in `error`;
     * then no server is open. An endpoint that a fault keeps down has a port, but refuses
     * connections. */
    bool start(quint16 controllerPort, quint16 hubPort, QString *error);
    /** Drops all clients and closes the servers, which keep their ports. */
    void stop();
    quint16 controllerPort() const;
    quint16 hubPort() const;
    /** The port of the rsync daemon; 0 without files. */
    quint16 rsyncPort() const;

    RobotState &robot();
    Frames &frames();
    IoSignals &io();
    Registers &registers();
    Projects &projects();
    Variables &variables();
    Motion &motion();
    /** "six" or "seven". */
    QString armName() const;
    HubData &hub();
    Faults &faults();
    Answers &answers();
    RequestLog &requests();

    /** By the rules that hold for a client, too. */
    Refusal openProject(const QString &name);
    /** The points that hot updates told of, by their names. */
    QJsonObject points() const;

    /** Sends a value on a notify path to all clients of the controller. */
    void notify(const QString &path, const QJsonValue &value);
    void dropControllerClients();
    void dropHubClients();
    /** What a client may take for its handshake from now on; 5000 ms at first. */
    void setHandshakeLimit(int ms);

    /** The robot's state, the ports, how many clients there are, what they watch, the faults. */
    QJsonObject state() const;

    /** Carries out one line of the control language. */
    Reply control(const QString &line);

signals:
    /** A text frame has arrived at the endpoint "controller" or "hub". */
    void received(const QString &endpoint, const QString &text);
    /** One line about something wrong: a client that was closed, a timeline step that failed. */
    void problem(const QString &line);

private:
    void applyConditions();
    void connectReports();
    void loadProject();
    bool carryOut(const QString &origin, const QString &line);

    class Private;
    std::unique_ptr<Private> d;
};

} // namespace simulator
