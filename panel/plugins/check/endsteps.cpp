#include "checksteps.h"

#include "projectfiles.h"

#include <kest/centerwidget.h>
#include <zeplet/zeplet.h>

#include <QDate>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QPixmap>

using namespace zeplet;

namespace
{

bool hasLogFile(const QString &base)
{
    const QString date = QDate::currentDate().toString(QStringLiteral("yyyyMMdd"));
    return QFileInfo(QStringLiteral("./log/%1_%2.log").arg(base, date)).size() > 0;
}

/** The panel's own picture of its end shows no project any more. */
QString savePicture()
{
    const QString file = QStringLiteral("check-points.png");
    return instantiatedCenterWidget()->window()->grab().save(file)
        ? QString()
        : file + QStringLiteral(" can't be saved");
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
        {QStringLiteral("the arm is seen again"),
         {},
         [] {
             return !zepletInterface()
                         ->getNexoData(QStringLiteral("motion.skeleton"))
                         .toArray()
                         .isEmpty();
         }},
        atOnce(QStringLiteral("picture of the points saved: check-points.png"), savePicture),
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
