#include <zeplet/projectdata/newpoint_p.h>

#include <ostrel/moduleobject.h>
#include <zeplet/interface/interfacemanager.h>
#include <zeplet/projectdata/pointhotupdate.h>
#include <zeplet/projectdata/pointrecords_p.h>
#include <zeplet/projectdata/pointsaving.h>
#include <zeplet/projectdata/projectrecords_p.h>

#include <QDateTime>

namespace zeplet
{

using ostrel::ModuleObject;

namespace
{

QString creationText()
{
    const QString time
        = QDateTime::currentDateTime().toString(QStringLiteral("yyyy/MM/dd hh:mm:ss"));
    return InterfaceManager::tr("Auto generate at: %1").arg(time);
}

} // namespace

std::unique_ptr<ModuleObject> newPoint(const QString &name, bool joint, const QString &persistence)
{
    auto point = newRecord(QStringLiteral("point"));
    const auto set = [&](const QString &field, const QVariant &value) {
        point->set(nullptr, field, value, true);
    };
    set(QStringLiteral("id"), pointList()->childCount());
    set(QStringLiteral("name"), name);
    set(QStringLiteral("property"), pointProperty(joint));
    if (!persistence.isEmpty())
        set(QStringLiteral("pers"), persistence);
    set(QStringLiteral("description"), creationText());
    set(QStringLiteral("func"), m(QStringLiteral("tavik.project.cur_func"))->getStr(QString()));
    set(QStringLiteral("task"), m(QStringLiteral("tavik.project.cur_task"))->getStr(QString()));
    return point;
}

bool addPoint(std::unique_ptr<ModuleObject> point, const QString &operation)
{
    if (!appendRecord(QStringLiteral("point"), std::move(point)))
        return false;
    triggerPointHotUpdate(operation, pointList()->childCount() - 1);
    return saveAndPushPoint();
}

QString pointProperty(bool joint)
{
    return joint ? QStringLiteral("joint") : QStringLiteral("cart");
}

} // namespace zeplet
