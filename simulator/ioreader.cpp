#include "ioreader.h"

#include "systemio.h"

#include <QMap>

namespace simulator
{

namespace
{
using SignalTypes = QMap<QString, IoSignals::Type>;

IoSignals::Signal readSignal(const QJsonValue &value, const QString &path, JsonError &error)
{
    JsonReader reader(value, path, error);
    reader.allowOnly({QStringLiteral("name"), QStringLiteral("type"), QStringLiteral("label"),
                      QStringLiteral("value")});
    IoSignals::Signal signal;
    signal.name = reader.name(QStringLiteral("name"));
    signal.type = static_cast<IoSignals::Type>(
        IoSignals::DigitalIn + reader.choice(QStringLiteral("type"), IoSignals::typeNames(), 0));
    signal.label = reader.text(QStringLiteral("label"), QString());
    signal.value = IoSignals::fitted(signal.type,
                                     reader.has(QStringLiteral("value"))
                                         ? reader.value(QStringLiteral("value"))
                                         : QJsonValue(false));
    if (signal.value.isUndefined())
        reader.report(QStringLiteral("value"), QStringLiteral("does not fit the type"));
    return signal;
}

QVector<IoSignals::SystemIo> readSystem(JsonReader &io, const QString &name,
                                        const QStringList &functions, const SignalTypes &types,
                                        IoSignals::Type type, JsonError &error)
{
    QVector<IoSignals::SystemIo> list;
    for (const QJsonValue &value : io.array(name)) {
        JsonReader reader(value, elementPath(io.pathOf(name), list.size()), error);
        reader.allowOnly({QStringLiteral("signal"), QStringLiteral("function")});
        const QString signal = reader.text(QStringLiteral("signal"), QString());
        const int function = reader.choice(QStringLiteral("function"), functions, -1);
        if (types.value(signal) != type)
            reader.report(QStringLiteral("signal"),
                          QStringLiteral("expected the name of a %1")
                              .arg(IoSignals::typeNames().at(type - 1)));
        if (function < 0)
            reader.report(
                QStringLiteral("function"),
                QStringLiteral("expected one of %1").arg(functions.join(QStringLiteral(", "))));
        list += {signal, functions.value(function)};
    }
    return list;
}

Registers::Register readRegister(const QJsonValue &value, const QString &path, JsonError &error)
{
    JsonReader reader(value, path, error);
    reader.allowOnly({QStringLiteral("name"), QStringLiteral("value")});
    return {reader.name(QStringLiteral("name")), reader.texts(QStringLiteral("value"))};
}
} // namespace

IoSignals::Values readIo(JsonReader &scenario, JsonError &error)
{
    const QString member = QStringLiteral("io");
    IoSignals::Values values;
    if (!scenario.has(member))
        return values;
    JsonReader reader(scenario.value(member), member, error);
    const QString inputs = QStringLiteral("system_inputs");
    const QString outputs = QStringLiteral("system_outputs");
    reader.allowOnly({QStringLiteral("simulated"), QStringLiteral("signals"), inputs, outputs});
    values.simulated = reader.flag(QStringLiteral("simulated"), false);
    values.list = readNamed(reader, QStringLiteral("signals"), error, readSignal);
    SignalTypes types;
    for (const IoSignals::Signal &signal : qAsConst(values.list))
        types.insert(signal.name, signal.type);
    values.systemInputs = readSystem(reader, inputs, SystemIo::inputFunctions(), types,
                                     IoSignals::DigitalIn, error);
    values.systemOutputs = readSystem(reader, outputs, SystemIo::outputFunctions(), types,
                                      IoSignals::DigitalOut, error);
    return values;
}

Registers::Values readRegisters(JsonReader &scenario, JsonError &error)
{
    return readNamed(scenario, QStringLiteral("registers"), error, readRegister);
}

} // namespace simulator
