#include "signallist.h"

#include <QCoreApplication>
#include <QHash>
#include <QJsonObject>
#include <zeplet/interface/interfacemanager.h>

using zeplet::zepletInterface;

namespace
{

/** From the signals that the controller uses itself to what it uses them for, in words. */
QHash<QString, QString> systemFunctions()
{
    QHash<QString, QString> functions;
    const QJsonValue lists
        = zepletInterface()->getNodeData(QStringLiteral("tavik.robot.sysytem_io"));
    for (const char *list : {"input_system_io", "output_system_io"}) {
        const QJsonArray entries = lists[QLatin1String(list)].toArray();
        for (const QJsonValue &entry : entries)
            functions.insert(entry[QLatin1String("signal")].toString(),
                             entry[QLatin1String("function")].toString().replace('_', ' '));
    }
    return functions;
}

} // namespace

bool isDigital(SignalType type)
{
    return type == SignalType::DigitalInput || type == SignalType::DigitalOutput;
}

bool isGroup(SignalType type)
{
    return type == SignalType::GroupInput || type == SignalType::GroupOutput;
}

bool isInput(SignalType type)
{
    return type == SignalType::DigitalInput || type == SignalType::GroupInput
        || type == SignalType::AnalogueInput;
}

QString shortName(SignalType type)
{
    static const char *const names[SignalTypes] = {"DI", "DO", "GI", "GO", "AI", "AO"};
    return QString::fromLatin1(names[static_cast<int>(type) - 1]);
}

QString longName(SignalType type)
{
    static const char *const names[SignalTypes]
        = {QT_TRANSLATE_NOOP("signals", "Digital inputs"),
           QT_TRANSLATE_NOOP("signals", "Digital outputs"),
           QT_TRANSLATE_NOOP("signals", "Group inputs"),
           QT_TRANSLATE_NOOP("signals", "Group outputs"),
           QT_TRANSLATE_NOOP("signals", "Analogue inputs"),
           QT_TRANSLATE_NOOP("signals", "Analogue outputs")};
    return QCoreApplication::translate("signals", names[static_cast<int>(type) - 1]);
}

QVector<Signal> readSignals(SignalType type)
{
    zeplet::InterfaceManager *const robot = zepletInterface();
    const QJsonObject details
        = robot->getNodeData(QStringLiteral("tavik.robot.io.signal_detail")).toObject();
    const QJsonObject values
        = robot->getNodeData(QStringLiteral("tavik.robot.io.values")).toObject();
    const QHash<QString, QString> functions = systemFunctions();
    QVector<Signal> found;
    const QStringList names = robot->getIOByType(static_cast<int>(type));
    for (const QString &name : names)
        found.append({name, details.value(name)[QLatin1String("label")].toString(),
                      functions.value(name), functions.contains(name), values.value(name)});
    return found;
}

int countSignals(SignalType type)
{
    return zepletInterface()->getIOByType(static_cast<int>(type)).size();
}

bool areInputsSimulated()
{
    return zepletInterface()
        ->getNodeData(QStringLiteral("tavik.robot.io.input_simu_mode"))
        .toBool();
}
