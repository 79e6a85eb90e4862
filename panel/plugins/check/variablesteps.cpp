#include "checksteps.h"

#include "projectfiles.h"

#include <zeplet/zeplet.h>

#include <QJsonObject>

using namespace zeplet;

namespace
{

const QString variable = QStringLiteral("var");
const QString count = QStringLiteral("box_count");
const QString locked = QStringLiteral("locked_limit");

InterfaceManager *robot()
{
    return zepletInterface();
}

CheckStep edit(CheckSession *session, const QString &title, const QString &name,
               const std::function<bool()> &edit)
{
    return editStep(session, title, variable, name, edit);
}

QString refusedUpdate()
{
    const QByteArray before = projectfiles::onPanel(variable);
    if (robot()->updateVarData(locked, 6))
        return QStringLiteral("the update returned true");
    return projectfiles::onPanel(variable) == before ? projectfiles::difference(variable)
                                                     : QStringLiteral("the file has changed");
}

} // namespace

CheckSteps variableSteps(CheckSession *session)
{
    const QString spare = QStringLiteral("spare");
    return {
        edit(session, QStringLiteral("variable added"), count,
             [] { return robot()->addVarData(count, 12, true); }),
        edit(session, QStringLiteral("variable changed"), count,
             [] { return robot()->updateVarData(count, 13); }),
        answerStep(session, QStringLiteral("hot update: variable taken over by the controller"),
                   QStringLiteral("var get ") + count,
                   [](const QJsonValue &taken) { return taken[QStringLiteral("value")] == 13; }),
        edit(session, QStringLiteral("locked variable added"), locked,
             [] { return robot()->addVarData(locked, 5, false); }),
        atOnce(QStringLiteral("hot update: variable refused, everything as it was"), refusedUpdate),
        edit(session, QStringLiteral("text variable added"), spare,
             [=] { return robot()->addVarData(spare, QStringLiteral("none; $(x) 点"), false); }),
        edit(session, QStringLiteral("text variable removed"), spare,
             [=] { return robot()->delVarData(spare); }),
        atOnce(QStringLiteral("variables listed by type"),
               [] {
                   return robot()->getVarDataList(QStringLiteral("int"))
                           == QStringList({count, locked})
                       ? QString()
                       : robot()->getVarDataList({}).join(QStringLiteral(", "));
               }),
    };
}
