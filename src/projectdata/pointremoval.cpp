#include <zeplet/interface/interfacemanager.h>

#include <ostrel/moduleobject.h>
#include <zeplet/interface/nodejson_p.h>
#include <zeplet/log/hostlines_p.h>
#include <zeplet/log/jsontext_p.h>
#include <zeplet/projectdata/pointrecords_p.h>
#include <zeplet/projectdata/pointsaving.h>
#include <zeplet/projectdata/projectrecords_p.h>

namespace zeplet
{

using ostrel::ModuleObject;

namespace
{

// Where the program uses the point is said in any case, also by a record that has no such fields.
std::unique_ptr<ModuleObject> removedVariable(const ModuleObject &point)
{
    auto entry = std::make_unique<ModuleObject>(point.name());
    entry->copyFrom(nullptr, point);
    for (const QString &field : {QStringLiteral("func"), QStringLiteral("task")})
        entry->set(nullptr, field, point.getStr(field, QString()), true);
    return entry;
}

bool hotRemovePoint(const ModuleObject &point)
{
    ModuleObject request;
    request.set(nullptr, QStringLiteral("operator"), QStringLiteral("remove"), true);
    request.r(QStringLiteral("variables"))->append(nullptr, removedVariable(point));
    statusLine() << "hotRemovePoint:" << jsonText(nodeToJson(&request));
    return commandProjectVariable(&request, 0) == 0;
}

} // namespace

bool InterfaceManager::removePoint(const QString &name)
{
    int position = -1;
    const ModuleObject *point = findPointByName(pointList(), name, &position);
    if (!point) {
        errorLine() << "removePoint: not found, name=" << name;
        return false;
    }
    if (!hotRemovePoint(*point)) {
        errorLine() << "removePoint: hotRemove failed, name=" << name;
        return false;
    }
    pointList()->removeAt(nullptr, position);
    return saveAndPushPoint();
}

} // namespace zeplet
