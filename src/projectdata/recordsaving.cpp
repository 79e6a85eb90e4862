#include <zeplet/projectdata/recordsaving_p.h>

#include <ostrel/moduleobject.h>
#include <zeplet/interface/projectpaths_p.h>
#include <zeplet/log/hostlines_p.h>
#include <zeplet/projectdata/datafile.h>
#include <zeplet/projectdata/projectrecords_p.h>
#include <zeplet/sync/synctool.h>

namespace zeplet
{

QString openProjectName()
{
    const QString project = m(QStringLiteral("tavik.project.cur_project"))->getStr(QString());
    const QString name = project.section(QLatin1Char('/'), -1);
    return name.isEmpty() ? QStringLiteral("_temp") : name;
}

bool saveAndPushRecords(const QString &kind)
{
    const QString project = openProjectName();
    const QString file = QLatin1Char('/') + kind + QStringLiteral(".json");
    const QString path = projectDirectory(project) + file;
    const bool hasPlace = !workspaceDirectory().isEmpty() && isPlainName(project);
    if (!hasPlace || !writeDataToJson(path, recordList(kind), kind)) {
        errorLine() << "write " << kind << ".json failed";
        return false;
    }
    const QString remotePath = QStringLiteral("hmi/") + project + file;
    const bool pushed = SyncTool::instance()->pushOneFile(path, remotePath, false);
    if (!pushed)
        errorLine() << "push " << kind << ".json failed";
    return pushed;
}

} // namespace zeplet
