#include "checksteps.h"

#include "projectfiles.h"

#include <zeplet/zeplet.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <memory>

using namespace zeplet;

CheckSteps allSteps(CheckSession *session)
{
    CheckSteps steps;
    for (auto *group : {startSteps, controllerSteps, watchSteps, projectSteps, pointSteps,
                        hotUpdateSteps, variableSteps, programSteps, motionSteps, signalSteps,
                        persistentVariableSteps, runSteps, lossSteps, endSteps})
        steps += group(session);
    return steps;
}

CheckStep atOnce(const QString &title, const std::function<QString()> &problem)
{
    const auto found = std::make_shared<QString>();
    return {title, [=] { *found = problem(); }, [found] { return found->isEmpty(); },
            [found] { return *found; }, false};
}

CheckStep eventStep(CheckSession *session, const QString &title,
                    const std::function<void()> &action, const QList<int> &types)
{
    return {title,
            [session, action] {
                session->forgetNews();
                action();
            },
            [session, types] { return session->eventTypes() == types; },
            [session] { return toldEvents(session); }};
}

CheckStep editStep(CheckSession *session, const QString &title, const QString &kind,
                   const QString &name, const std::function<bool()> &edit)
{
    return atOnce(title, [=] {
        if (!edit())
            return QStringLiteral("the edit returned false");
        session->kept()->keep(kind, name);
        return projectfiles::difference(kind);
    });
}

CheckStep answerStep(CheckSession *session, const QString &title, const QString &line,
                     const std::function<bool(const QJsonValue &)> &fits)
{
    SimulatorProcess *const simulator = session->simulator();
    return {title, [=] { simulator->control(line); },
            [=] {
                const QJsonValue result = simulator->result();
                if (result.isUndefined() || fits(result))
                    return !result.isUndefined();
                simulator->control(line); // what was sent without waiting may still be on its way
                return false;
            },
            [=] {
                return QString::fromUtf8(
                    QJsonDocument(QJsonArray {simulator->result()}).toJson(QJsonDocument::Compact));
            }};
}

CheckStep messageStep(CheckSession *session, const QString &title,
                      const std::function<void()> &action, const QString &message)
{
    return {title,
            [session, action] {
                session->forgetNews();
                action();
            },
            [session, message] { return session->sawMessage(message); },
            [session] { return session->messages().join(QStringLiteral(" | ")); }};
}

void send(const QString &command, const QJsonValue &arguments)
{
    constexpr int timeoutMs = 4800;
    zepletInterface()->rcRequestFullCommand(command, arguments, timeoutMs);
}

QString toldEvents(const CheckSession *session)
{
    QStringList names;
    for (int type : session->eventTypes())
        names << eventTypeToString(static_cast<ZepletEventType>(type));
    return names.join(QStringLiteral(", "));
}
