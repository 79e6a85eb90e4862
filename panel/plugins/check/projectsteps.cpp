#include "checksteps.h"

#include "projectfiles.h"

#include <kest/bmodule.h>
#include <kest/centerwidget.h>
#include <zeplet/zeplet.h>

#include <QFileInfo>
#include <QJsonObject>

using namespace zeplet;

namespace
{

const QString project = QStringLiteral("Session check");
const QString mark = QStringLiteral("Made by script/run --check, which removes it again.");

QString leftoverDescription()
{
    const QJsonArray projects
        = zepletInterface()->getNodeData(QStringLiteral("tavik.project.project_list")).toArray();
    return projectfiles::recordOf(projects, project)
        .value(QStringLiteral("description"))
        .toString();
}

/** A check that was aborted leaves its project; one that a person made stays. */
QString removeLeftover()
{
    if (!zepletInterface()->getProjectList().contains(project))
        return {};
    if (leftoverDescription() != mark)
        return QStringLiteral("somebody else's project is named \"%1\"").arg(project);
    return zepletInterface()->removeProject(project) == 0 ? QString()
                                                          : QStringLiteral("it can't be removed");
}

QString create()
{
    const int result = zepletInterface()->createProject(project, mark, true);
    if (result != 0)
        return QStringLiteral("createProject returned %1").arg(result);
    if (!zepletInterface()->getProjectList().contains(project))
        return QStringLiteral("it is not in the list");
    return zepletInterface()->createProject(project, mark, true) == -2
        ? QString()
        : QStringLiteral("it was made twice");
}

/** The page then watches all that follows. */
QString showPoints()
{
    const QString page = mName(QStringLiteral("zeplet"), QStringLiteral("page-points"));
    return instantiatedCenterWidget()->switchTo(nullptr, page)
        ? QString()
        : QStringLiteral("there is no page ") + page;
}

} // namespace

CheckSteps projectSteps(CheckSession *session)
{
    return {
        atOnce(QStringLiteral("no project left by an earlier check"), removeLeftover),
        atOnce(QStringLiteral("project created and opened"), create),
        atOnce(QStringLiteral("page of the points shown"), showPoints),
        answerStep(session, QStringLiteral("project open on the controller, with a directory"),
                   QStringLiteral("project get"),
                   [](const QJsonValue &projects) {
                       return projects[QStringLiteral("projects")].toArray().contains(project)
                           && QFileInfo(projectfiles::controllerDirectory(project)).isDir();
                   }),
    };
}
