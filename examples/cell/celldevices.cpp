#include "celldevices.h"

#include <QJsonDocument>

using zeplet::zepletInterface;

CellDevices::CellDevices(QObject *parent)
    : ServiceInterface(parent)
{
}

// The lamp follows a value of the hub, the beacon beside it a part of the value "cell".
bool CellDevices::setLamp(bool on)
{
    return zepletInterface()->setNexoData("cell.lamp", on)
        && zepletInterface()->setNexoData("cell", "beacon", on);
}

Sentence CellDevices::temperature() const
{
    const QJsonValue degrees = zepletInterface()->getNexoData("demo.temperature");
    const QJsonValue person = zepletInterface()->getNexoData("demo", "operator");
    if (!degrees.isDouble())
        return [] { return tr("The sensor says nothing."); };
    return [=] {
        return tr("%1 °C, %2 looks after it.").arg(degrees.toDouble()).arg(person.toString());
    };
}

// The first command is not waited for: what it does can be seen.
bool CellDevices::reset()
{
    return zepletInterface()->commandNexoData("demo.flash", 3)
        && zepletInterface()->execCommandNexoData("demo.reset", QVariant()).toBool();
}

Gripper::Gripper(QObject *parent)
    : CustomInterface(parent)
{
}

// One command of several steps, which the service carries out in this order.
Sentence Gripper::grip(int newtons)
{
    const QJsonObject force {{"force", newtons}};
    if (zepletInterface()->commandCustomData(this, "gripper", force).isEmpty())
        return [] { return tr("The gripper did not answer."); };
    return sentence(zepletInterface()->commandCustomData(
        this, QJsonArray {QJsonObject {{"gripper", "close"}}, QJsonObject {{"gripper", "hold"}}}));
}

Sentence Gripper::release()
{
    zepletInterface()->commandCustomData(this, QJsonObject {{"gripper", "open"}});
    return sentence(zepletInterface()->commandCustomData(this, "gripper", "get", "state"));
}

Sentence Gripper::sentence(const QJsonArray &answer) const
{
    if (answer.isEmpty())
        return [] { return tr("The gripper did not answer."); };
    const QString text = QString::fromUtf8(QJsonDocument(answer).toJson(QJsonDocument::Compact));
    return [=] { return tr("The gripper answered: %1").arg(text); };
}

CellController::CellController(QObject *parent)
    : BaseInterface(parent)
{
}

// Sent, not answered: the signals tell what became of it. The recipe is the first register's.
bool CellController::runConveyor(bool on)
{
    const auto value = [](const QString &signal, const QJsonValue &state) {
        return QJsonObject {{"signal_value", QJsonObject {{signal, state}}}};
    };
    return zepletInterface()->rcRequest("io", "io_signal.set_signal_value",
                                        value("do_conveyor", on))
        && zepletInterface()->rcRequestFullCommand("io.io_signal.set_signal_value",
                                                   value("do_lamp_green", on));
}

// The newer controllers say more of themselves.
Sentence CellController::description() const
{
    const QJsonValue parameters
        = zepletInterface()->rcExecRequest("system", "controller.get_params", QJsonValue());
    const QJsonValue projects
        = zepletInterface()->rcExecRequestFullCommand("project.overview.get", QJsonValue());
    if (parameters.isNull() || projects.isNull())
        return [] { return tr("The controller did not answer."); };
    const QString robot = parameters["robot"].toString();
    const int count = projects["projects"].toArray().size();
    if (!zeplet::checkBrisaVersion("3."))
        return [=] { return tr("An old %1.").arg(robot); };
    return [=] { return tr("A %1. Projects: %2.").arg(robot).arg(count); };
}
