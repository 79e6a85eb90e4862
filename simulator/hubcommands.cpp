#include "hubcommands.h"

#include <QJsonArray>
#include <QJsonObject>

namespace simulator
{

namespace
{
constexpr int kMaxWatches = 10000;

/** The service that plugins reach in each hub: it answers with what it was sent. */
const QString kEchoService = QStringLiteral("ServiceAPI.plugin");
/** The hub command that answers with its value. */
const QString kEchoCommand = QStringLiteral("echo");

Reply missing(const char *member, const char *type)
{
    return Reply::bad(QStringLiteral("the argument '%1' has to be %2")
                          .arg(QLatin1String(member), QLatin1String(type)));
}
} // namespace

HubCommands::HubCommands(CommandRegistry &registry, HubData &data, const Answers &answers,
                         CommandRegistry &keys)
    : m_data(data)
    , m_answers(answers)
    , m_keys(keys)
{
    registry.add(QStringLiteral("hub.snapshot"),
                 [this](const QJsonValue &, Session &) { return Reply::done(m_data.snapshot()); });
    registry.add(QStringLiteral("hub.set"),
                 [this](const QJsonValue &arguments, Session &) { return set(arguments); });
    registry.add(QStringLiteral("hub.command"),
                 [this](const QJsonValue &arguments, Session &session) {
                     return command(arguments, session);
                 });
    registry.add(QStringLiteral("hub.plugin"),
                 [this](const QJsonValue &arguments, Session &) { return plugin(arguments); });
    registry.add(QStringLiteral("hub.watch"), watch);
    keys.add(kEchoCommand, [](const QJsonValue &value, Session &) { return Reply::done(value); });
}

Reply HubCommands::set(const QJsonValue &arguments)
{
    const QJsonValue key = arguments[QStringLiteral("key")];
    const QJsonValue sub = arguments[QStringLiteral("sub")];
    const QJsonValue value = arguments[QStringLiteral("value")];
    if (!key.isString())
        return missing("key", "a text");
    if (!sub.isUndefined() && !sub.isString())
        return missing("sub", "a text");
    if (value.isUndefined())
        return missing("value", "given");
    const QString below = sub.toString();
    return Reply::of(m_data.set(
        below.isEmpty() ? key.toString() : key.toString() + QLatin1Char('.') + below, value));
}

Reply HubCommands::command(const QJsonValue &arguments, Session &session) const
{
    const QJsonValue key = arguments[QStringLiteral("key")];
    if (!key.isString())
        return missing("key", "a text");
    if (!m_keys.knows(key.toString()))
        return Reply::refused(QStringLiteral("unknown hub command '%1'").arg(key.toString()));
    return m_keys.run(key.toString(), arguments[QStringLiteral("value")], session);
}

Reply HubCommands::plugin(const QJsonValue &arguments) const
{
    const QJsonValue command = arguments[QStringLiteral("command")];
    const QJsonValue value = arguments[QStringLiteral("value")];
    if (!arguments[QStringLiteral("id")].isString())
        return missing("id", "a text");
    if (!command.isString())
        return missing("command", "a text");
    const auto answer = m_answers.plugin.constFind(command.toString());
    if (answer != m_answers.plugin.cend())
        return Reply::done(QJsonObject {{QStringLiteral("data"), *answer}});
    if (command.toString() != kEchoService)
        return Reply::refused(QStringLiteral("unknown service '%1'").arg(command.toString()));
    const QJsonArray data = value.isArray() ? value.toArray() : QJsonArray {value};
    return Reply::done(QJsonObject {{QStringLiteral("data"), data}});
}

Reply HubCommands::watch(const QJsonValue &arguments, Session &session)
{
    const QJsonValue key = arguments[QStringLiteral("key")];
    const QJsonValue on = arguments[QStringLiteral("on")];
    if (!key.isString())
        return missing("key", "a text");
    if (!on.isBool())
        return missing("on", "true or false");
    if (!on.toBool()) {
        session.watches.remove(key.toString());
        return {};
    }
    if (session.watches.size() >= kMaxWatches)
        return Reply::refused(QStringLiteral("%1 keys are watched already").arg(kMaxWatches));
    session.watches.insert(key.toString());
    return {};
}

} // namespace simulator
