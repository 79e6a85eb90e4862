#include <zeplet/projectdata/projectrecords_p.h>

#include <nexo/nexo.h>
#include <ostrel/moduleobject.h>
#include <zeplet/interface/nodejson_p.h>
#include <zeplet/log/hostlines_p.h>

namespace zeplet
{

using ostrel::ModuleObject;

ModuleObject *recordTree(const QString &kind)
{
    return m(QStringLiteral("tavik.project.") + kind);
}

ModuleObject *recordList(const QString &kind)
{
    return recordTree(kind)->r(QStringLiteral("_list"));
}

std::unique_ptr<ModuleObject> newRecord(const QString &kind)
{
    auto record = std::make_unique<ModuleObject>(ModuleObject::generateId());
    record->copyFrom(nullptr, *recordTree(kind)->r(QStringLiteral("default")));
    return record;
}

ModuleObject *appendRecord(const QString &kind, std::unique_ptr<ModuleObject> record)
{
    ModuleObject *added = recordList(kind)->append(nullptr, std::move(record));
    if (added)
        touch(added);
    else
        errorLine() << "the project data hold no list of records, kind=" << kind;
    return added;
}

void touch(ModuleObject *record)
{
    record->set(nullptr, QVariant());
}

int commandProjectVariable(ModuleObject *request, int noAnswer)
{
    const ModuleObject *answer
        = nexo()->execCommand(nullptr, QStringLiteral("project.variable"), request);
    return nodeToJson(answer).toInt(noAnswer);
}

} // namespace zeplet
