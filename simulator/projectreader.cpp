#include "projectreader.h"

#include <limits>

namespace simulator
{

namespace
{
void checkProject(const QString &name, const QString &path, JsonError &error)
{
    if (const Refusal refusal = Projects::checkName(name))
        error.report(path, *refusal);
}

Variables::Variable readVariable(const QJsonValue &value, const QString &path, JsonError &error)
{
    JsonReader reader(value, path, error);
    reader.allowOnly({QStringLiteral("name"), QStringLiteral("type"), QStringLiteral("value"),
                      QStringLiteral("pers")});
    return {reader.name(QStringLiteral("name")),
            reader.text(QStringLiteral("type"), QStringLiteral("double")),
            reader.has(QStringLiteral("value")) ? reader.value(QStringLiteral("value"))
                                                : QJsonValue(0),
            reader.flag(QStringLiteral("pers"), true)};
}

SystemVariable readSystemVariable(const QJsonValue &value, const QString &path, JsonError &error)
{
    JsonReader reader(value, path, error);
    reader.allowOnly({QStringLiteral("name"), QStringLiteral("type"), QStringLiteral("value")});
    return {reader.name(QStringLiteral("name")), reader.name(QStringLiteral("type")),
            reader.value(QStringLiteral("value"))};
}

/** A pattern with * and ?, which fit any characters. */
QRegularExpression wildcard(const QString &pattern)
{
    QString expression = QRegularExpression::escape(pattern);
    expression.replace(QStringLiteral("\\*"), QStringLiteral(".*"));
    expression.replace(QStringLiteral("\\?"), QStringLiteral("."));
    return QRegularExpression(QRegularExpression::anchoredPattern(expression),
                              QRegularExpression::DotMatchesEverythingOption);
}

HotUpdateRule readRule(const QJsonValue &value, const QString &path, JsonError &error)
{
    const QString operation = QStringLiteral("operator");
    const QString name = QStringLiteral("name");
    const QString reply = QStringLiteral("reply");
    const QString reason = QStringLiteral("reason");
    JsonReader reader(value, path, error);
    reader.allowOnly({operation, name, QStringLiteral("type"), reply, reason});
    HotUpdateRule rule;
    const int index = reader.choice(operation, HotUpdate::operations(), -1);
    rule.operation = HotUpdate::operations().value(index);
    if (reader.has(name))
        rule.name = wildcard(reader.name(name));
    rule.type = reader.text(QStringLiteral("type"), QString());
    rule.reply = reader.integer(reply, 0, std::numeric_limits<int>::min(),
                                std::numeric_limits<int>::max());
    rule.reason = reader.text(reason, QString());
    if (reader.has(reply) != rule.reason.isEmpty())
        reader.report(reply, QStringLiteral("a rule has either a reply or a reason"));
    return rule;
}
} // namespace

Projects::Values readProject(JsonReader &scenario, JsonError &error)
{
    const QString member = QStringLiteral("project");
    const QString autoload = QStringLiteral("autoload");
    const QString open = QStringLiteral("open");
    const QString names = QStringLiteral("projects");
    Projects::Values values;
    if (!scenario.has(member))
        return values;
    JsonReader reader(scenario.value(member), member, error);
    reader.allowOnly({autoload, open, QStringLiteral("values"), names, QStringLiteral("tasks"),
                      QStringLiteral("function")});
    values.autoloadPath = reader.text(autoload, QString());
    if (!values.autoloadPath.isEmpty())
        checkProject(values.autoloadPath.section(QLatin1Char('/'), 0, 0), reader.pathOf(autoload),
                     error);
    values.open = reader.text(open, QString());
    if (!values.open.isEmpty())
        checkProject(values.open, reader.pathOf(open), error);
    values.values = reader.object(QStringLiteral("values"));
    values.names = reader.texts(names);
    for (int i = 0; i < values.names.size(); ++i)
        checkProject(values.names.at(i), elementPath(reader.pathOf(names), i), error);
    if (values.names.size() > Projects::kMaxProjects)
        reader.report(names, QStringLiteral("%1 at most").arg(Projects::kMaxProjects));
    if (reader.has(QStringLiteral("tasks")))
        values.tasks = reader.texts(QStringLiteral("tasks"));
    values.function = reader.text(QStringLiteral("function"), values.function);
    return values;
}

QVector<Variables::Variable> readVariables(JsonReader &scenario, JsonError &error)
{
    return readNamed(scenario, QStringLiteral("variables"), error, readVariable);
}

SystemVariables readSystemVariables(JsonReader &scenario, JsonError &error)
{
    const QString member = QStringLiteral("system_variables");
    if (!scenario.has(member))
        return defaultSystemVariables();
    return readNamed(scenario, member, error, readSystemVariable);
}

QVector<HotUpdateRule> readHotUpdate(JsonReader &scenario, JsonError &error)
{
    const QString member = QStringLiteral("hot_update");
    return readArray(scenario.array(member), member, error, readRule);
}

} // namespace simulator
