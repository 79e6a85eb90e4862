#include "iocommands.h"

namespace simulator
{

namespace
{
const QString kValues = QStringLiteral("signal_value");
}

IoCommands::IoCommands(CommandRegistry &registry, IoSignals &io, const Registers &registers)
    : m_io(io)
{
    registry.add(QStringLiteral("io.get"),
                 [&io](const QJsonValue &, Session &) { return Reply::done(io.toJson()); });
    registry.add(QStringLiteral("io.io_signal.get_signal_value"),
                 [&io](const QJsonValue &, Session &) {
                     return Reply::done(QJsonObject {{kValues, io.valuesToJson()}});
                 });
    registry.add(QStringLiteral("io.io_signal.set_signal_value"),
                 [this](const QJsonValue &arguments, Session &) { return setValues(arguments); });
    registry.add(
        QStringLiteral("io.io_signal.set_input_simu_mode"),
        [this](const QJsonValue &arguments, Session &) { return setSimulated(arguments); });
    registry.add(QStringLiteral("register.get"), [&registers](const QJsonValue &, Session &) {
        return Reply::done(registers.toJson());
    });
}

Reply IoCommands::setValues(const QJsonValue &arguments)
{
    const QJsonValue values = arguments[kValues];
    if (!values.isObject())
        return Reply::bad(QStringLiteral("the argument '%1' has to be an object").arg(kValues));
    return Reply::of(m_io.request(values.toObject()));
}

Reply IoCommands::setSimulated(const QJsonValue &arguments)
{
    const QJsonValue on = arguments[QStringLiteral("on")];
    if (!on.isBool())
        return Reply::bad(QStringLiteral("the argument 'on' has to be true or false"));
    m_io.setSimulated(on.toBool());
    return {};
}

} // namespace simulator
