#include "projectcommands.h"

namespace simulator
{

namespace
{
/** Calls the function with a text argument. */
template <typename Function>
CommandRegistry::Handler withText(const char *argument, Function function)
{
    const QString name = QLatin1String(argument);
    return [name, function](const QJsonValue &arguments, Session &) {
        if (!arguments[name].isString())
            return Reply::bad(QStringLiteral("the argument '%1' has to be a text").arg(name));
        return Reply::of(function(arguments[name].toString()));
    };
}
} // namespace

ProjectCommands::ProjectCommands(CommandRegistry &controller, CommandRegistry &hubKeys,
                                 const Parts &parts)
    : m_parts(parts)
{
    controller.add(QStringLiteral("project.overview.get"), [this](const QJsonValue &, Session &) {
        return Reply::done(m_parts.projects.toJson());
    });
    controller.add(QStringLiteral("project.overview.open"),
                   withText("name", [this](const QString &name) { return open(name); }));
    controller.add(QStringLiteral("project.overview.set_autoload"),
                   withText("autoload_prj_path", [this](const QString &path) {
                       return m_parts.projects.setAutoload(path);
                   }));
    controller.add(QStringLiteral("project.frames.get"),
                   [this](const QJsonValue &, Session &) { return Reply::done(framesToJson()); });
    hubKeys.add(QStringLiteral("project.remove_task"),
                [remove = withText("name", [this](const QString &name) {
                     return removeTask(name);
                 })](const QJsonValue &arguments, Session &session) {
                    const Reply reply = remove(arguments, session);
                    return reply.isDone() ? Reply::done(0) : reply;
                });
}

Refusal ProjectCommands::open(const QString &name)
{
    if (!runs())
        return m_parts.projects.open(name);
    // A panel that comes back says again what is open: what the program changed stays.
    if (name == m_parts.projects.current())
        return std::nullopt;
    return QStringLiteral("another project cannot be opened while a program runs");
}

Refusal ProjectCommands::removeTask(const QString &name)
{
    if (runs() && name == m_parts.projects.current())
        return QStringLiteral("the task cannot be removed while its program runs");
    return m_parts.projects.removeTask(name);
}

QJsonObject ProjectCommands::framesToJson() const
{
    const Frames &frames = m_parts.frames;
    const auto lists = [&frames](Frames::Kind kind) {
        return QJsonObject {{QStringLiteral("system_list"), frames.toJson(kind, Frames::System)},
                            {QStringLiteral("_list"), frames.toJson(kind, Frames::Project)}};
    };
    QJsonArray variables;
    for (const SystemVariable &variable : m_parts.systemVariables)
        variables += QJsonObject {{QStringLiteral("name"), variable.name},
                                  {QStringLiteral("type"), variable.type},
                                  {QStringLiteral("value"), variable.value}};
    return {{QStringLiteral("tool"), lists(Frames::Tool)},
            {QStringLiteral("wobj"), lists(Frames::WorkObject)},
            {QStringLiteral("g_tools"), frames.toJson(Frames::Tool, Frames::Global)},
            {QStringLiteral("g_wobjs"), frames.toJson(Frames::WorkObject, Frames::Global)},
            {QStringLiteral("var_system_list"), variables}};
}

} // namespace simulator
