#include "checksteps.h"

#include "projectfiles.h"

#include <zeplet/zeplet.h>

#include <QDate>
#include <QFileInfo>

using namespace zeplet;

namespace
{

bool hasLogFile(const QString &base)
{
    const QString date = QDate::currentDate().toString(QStringLiteral("yyyyMMdd"));
    return QFileInfo(QStringLiteral("./log/%1_%2.log").arg(base, date)).size() > 0;
}

QString removeOpenProject()
{
    const QString name = zepletInterface()->getCurProject().section(QLatin1Char('/'), -1);
    const QString directory = projectfiles::panelDirectory();
    const int result = zepletInterface()->removeProject(name);
    if (result != 0)
        return QStringLiteral("removeProject returned %1").arg(result);
    const bool gone = !QFileInfo::exists(directory)
        && !zepletInterface()->getProjectList().contains(name)
        && zepletInterface()->getCurProject().isEmpty()
        && zepletInterface()->getPointNameList().isEmpty();
    return gone ? QString() : QStringLiteral("something of it is left");
}

} // namespace

CheckSteps endSteps(CheckSession *session)
{
    return {
        atOnce(QStringLiteral("project removed"), removeOpenProject),
        answerStep(session, QStringLiteral("the controller forgot its task"),
                   QStringLiteral("project get"),
                   [](const QJsonValue &projects) {
                       return projects[QStringLiteral("projects")].toArray().isEmpty();
                   }),
        {QStringLiteral("log files there"),
         {},
         [] {
             return hasLogFile(QStringLiteral("zeplet"))
                 && hasLogFile(QStringLiteral("zeplet/monitor"));
         }},
    };
}
