#include "simulator.h"

#include "changecollector.h"
#include "control.h"
#include "endpoint.h"
#include "hubcommands.h"
#include "iocommands.h"
#include "monitor.h"
#include "motioncommands.h"
#include "pathcheck.h"
#include "positioncommands.h"
#include "programcommands.h"
#include "projectcommands.h"
#include "statecommands.h"
#include "systemio.h"
#include "timeline.h"

#include <QJsonArray>
#include <utility>

namespace simulator
{

class Simulator::Private
{
public:
    explicit Private(const Scenario &scenario)
        : robot(scenario.robot)
        , frames(scenario.frames)
        , arm(scenario.arm)
        , motion(arm, robot, scenario.joints.isEmpty() ? arm.naturalPose() : scenario.joints)
        , hub(scenario.hub)
        , answers(scenario.answers)
        , timeline(scenario.timeline)
        , files(scenario.files)
        , io(scenario.io)
        , registers(scenario.registers)
        , projects(scenario.project, files.root())
        , projectValues(scenario.project.values)
        , systemVariables(scenario.systemVariables)
        , variables(scenario.variables)
        , program(scenario.program)
        , hotUpdate(hubKeys, scenario.hotUpdate, variables)
    {
        for (const Fault &fault : scenario.faults)
            faults.add(fault);
    }

    /** The panel's points are in "_temp" as long as no project is open. */
    QString pointsFile() const
    {
        const QString file = QStringLiteral("point.json");
        if (!projects.current().isEmpty() || files.root().isEmpty())
            return projects.filePath(file);
        return files.root() + QStringLiteral("/_temp/") + file;
    }

    RobotState robot;
    Frames frames;
    Arm arm;
    Motion motion;
    HubData hub;
    Faults faults;
    Answers answers;
    RequestLog requests;
    Timeline timeline;
    FileServer files;
    IoSignals io;
    Registers registers;
    Projects projects;
    QJsonObject projectValues; ///< for the project that is open at the start; empty after that
    SystemVariables systemVariables;
    Variables variables;
    Program program;
    SystemIo systemIo {io, robot};
    ChangeCollector signalChanges;

    CommandRegistry controllerRegistry {answers.controller};
    StateCommands stateCommands {controllerRegistry, robot};
    ProgramCommands programCommands {controllerRegistry, robot};
    PositionCommands positionCommands {controllerRegistry, arm, motion, frames};
    IoCommands ioCommands {controllerRegistry, io, registers};
    CommandRegistry hubRegistry;
    CommandRegistry hubKeys {answers.hub}; ///< what `hub.command` carries out, by key
    HubCommands hubCommands {hubRegistry, hub, answers, hubKeys};
    ProjectCommands projectCommands {
        controllerRegistry, hubKeys, {projects, frames, systemVariables, robot}};
    HotUpdate hotUpdate;
    Monitor monitor {hubKeys, {hub, variables, robot}};
    MotionKeys motionKeys {hub, arm, motion};
    MotionCommands motionCommands {hubKeys, {robot, frames, hub, motion, motionKeys}};
    PathCheck pathCheck {hubKeys, {arm, motion, frames, [this] { return pointsFile(); }}};

    Endpoint controllerEnd {QStringLiteral("controller"), {controllerRegistry, faults, requests}};
    Endpoint hubEnd {QStringLiteral("hub"), {hubRegistry, faults, requests}};
    bool started = false;
};

Simulator::Simulator(const Scenario &scenario, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(scenario))
{
    connectReports();
    connect(&d->hub, &HubData::changed, this, [this](const QString &key, const QJsonValue &value) {
        d->hubEnd.notify(QStringLiteral("hub.changed"),
                         {{QStringLiteral("key"), key}, {QStringLiteral("value"), value}});
    });
    connect(&d->faults, &Faults::conditionsChanged, this, &Simulator::applyConditions);
    connect(&d->timeline, &Timeline::due, this,
            [this](const QString &line) { carryOut(QStringLiteral("timeline"), line); });
    d->program.setWait([this] { return d->motion.isMoving(); });
    connect(&d->program, &Program::due, this, [this](const QString &line) {
        if (!carryOut(QStringLiteral("program"), line))
            d->robot.stopProgram();
    });
    connect(&d->robot, &RobotState::changed, this,
            [this] { d->program.setRunning(d->robot.values().program); });
    connect(&d->projects, &Projects::opened, this, &Simulator::loadProject);
    connect(&d->files, &FileServer::problem, this, &Simulator::problem);
    for (Endpoint *endpoint : {&d->controllerEnd, &d->hubEnd}) {
        connect(endpoint, &Endpoint::received, this, &Simulator::received);
        connect(endpoint, &Endpoint::problem, this, &Simulator::problem);
    }
}

void Simulator::connectReports()
{
    const auto report = [this](auto *source, auto changed, const char *path, auto value) {
        connect(source, changed, this,
                [this, name = QString::fromLatin1(path), value] { notify(name, value()); });
    };
    report(&d->robot, &RobotState::changed, "system.state", [this] { return d->robot.toJson(); });
    report(&d->io, &IoSignals::stateChanged, "io.state", [this] { return d->io.toJson(); });
    report(&d->registers, &Registers::changed, "register.state",
           [this] { return d->registers.toJson(); });
    report(&d->projects, &Projects::changed, "project.overview",
           [this] { return d->projects.toJson(); });
    report(&d->frames, &Frames::changed, "project.frames",
           [this] { return d->projectCommands.framesToJson(); });
    connect(&d->io, &IoSignals::valueChanged, &d->signalChanges, &ChangeCollector::add);
    connect(&d->signalChanges, &ChangeCollector::due, this, [this](const QJsonObject &changes) {
        notify(QStringLiteral("io.signal_value"), changes);
    });
}

void Simulator::loadProject()
{
    QString error;
    d->variables.setProject(
        readVariableFile(d->projects.filePath(QStringLiteral("var.json")), &error));
    d->variables.restoreProjectValues(std::exchange(d->projectValues, {}));
    d->hotUpdate.forgetPoints();
    if (!error.isEmpty())
        emit problem(QStringLiteral("project: ") + error);
}

bool Simulator::carryOut(const QString &origin, const QString &line)
{
    const Reply reply = control(line);
    if (!reply.isDone())
        emit problem(QStringLiteral("%1: %2: %3").arg(origin, line, reply.reason));
    return reply.isDone();
}

Simulator::~Simulator()
{
    stop();
}

bool Simulator::start(quint16 controllerPort, quint16 hubPort, QString *error)
{
    if (d->started)
        return true;
    d->started = d->controllerEnd.open(controllerPort, error) && d->hubEnd.open(hubPort, error)
        && d->files.open(error);
    if (!d->started) {
        stop();
        return false;
    }
    applyConditions();
    if (const Refusal refusal = d->projects.load())
        emit problem(QStringLiteral("project: ") + *refusal);
    d->program.setRunning(d->robot.values().program);
    d->timeline.start();
    return true;
}

void Simulator::stop()
{
    d->started = false;
    d->controllerEnd.close();
    d->hubEnd.close();
    d->files.close();
}

void Simulator::applyConditions()
{
    const bool silent = d->faults.isActive(FaultKind::Silent);
    const auto apply = [&](auto &server, FaultKind down, auto open) {
        if (!d->started || d->faults.isActive(down)) {
            server.close();
            return;
        }
        QString error;
        if (!open(&error))
            emit problem(error);
    };
    for (Endpoint *endpoint : {&d->controllerEnd, &d->hubEnd})
        endpoint->setSilent(silent);
    apply(d->controllerEnd, FaultKind::ControllerDown,
          [this](QString *error) { return d->controllerEnd.open(0, error); });
    apply(d->hubEnd, FaultKind::HubDown,
          [this](QString *error) { return d->hubEnd.open(0, error); });
    apply(d->files, FaultKind::FilesDown, [this](QString *error) { return d->files.open(error); });
}

quint16 Simulator::controllerPort() const
{
    return d->controllerEnd.port();
}

quint16 Simulator::hubPort() const
{
    return d->hubEnd.port();
}

quint16 Simulator::rsyncPort() const
{
    return d->files.port();
}

RobotState &Simulator::robot()
{
    return d->robot;
}

Frames &Simulator::frames()
{
    return d->frames;
}

IoSignals &Simulator::io()
{
    return d->io;
}

Registers &Simulator::registers()
{
    return d->registers;
}

Projects &Simulator::projects()
{
    return d->projects;
}

Variables &Simulator::variables()
{
    return d->variables;
}

Motion &Simulator::motion()
{
    return d->motion;
}

QString Simulator::armName() const
{
    return Arm::kindNames().at(static_cast<int>(d->arm.kind()));
}

HubData &Simulator::hub()
{
    return d->hub;
}

Faults &Simulator::faults()
{
    return d->faults;
}

Answers &Simulator::answers()
{
    return d->answers;
}

RequestLog &Simulator::requests()
{
    return d->requests;
}

Refusal Simulator::openProject(const QString &name)
{
    return d->projectCommands.open(name);
}

QJsonObject Simulator::points() const
{
    return d->hotUpdate.points();
}

void Simulator::notify(const QString &path, const QJsonValue &value)
{
    d->controllerEnd.notify(QStringLiteral("notify"),
                            {{QStringLiteral("path"), path}, {QStringLiteral("value"), value}});
}

void Simulator::dropControllerClients()
{
    d->controllerEnd.dropClients();
}

void Simulator::dropHubClients()
{
    d->hubEnd.dropClients();
}

void Simulator::setHandshakeLimit(int ms)
{
    d->controllerEnd.setHandshakeLimit(ms);
    d->hubEnd.setHandshakeLimit(ms);
}

QJsonObject Simulator::state() const
{
    QJsonArray faults;
    for (const Fault &fault : d->faults.active())
        faults += QJsonObject {{QStringLiteral("fault"), Faults::nameOf(fault.kind)},
                               {QStringLiteral("command"), fault.command},
                               {QStringLiteral("times"), fault.times}};
    const auto ofEnd = [](const Endpoint &endpoint) {
        return QJsonObject {{QStringLiteral("port"), endpoint.port()},
                            {QStringLiteral("up"), endpoint.isOpen()},
                            {QStringLiteral("clients"), endpoint.clientCount()}};
    };
    return {{QStringLiteral("robot"), d->robot.toJson()},
            {QStringLiteral("controller"), ofEnd(d->controllerEnd)},
            {QStringLiteral("hub"), ofEnd(d->hubEnd)},
            {QStringLiteral("files"),
             QJsonObject {{QStringLiteral("port"), d->files.port()},
                          {QStringLiteral("up"), d->files.isOpen()}}},
            {QStringLiteral("project"), d->projects.current()},
            {QStringLiteral("watches"), QJsonArray::fromStringList(d->hubEnd.watches())},
            {QStringLiteral("faults"), faults}};
}

Reply Simulator::control(const QString &line)
{
    const ControlLine parsed = ControlLine::parse(line);
    return parsed.run ? parsed.run(*this) : Reply::refused(parsed.error);
}

} // namespace simulator
