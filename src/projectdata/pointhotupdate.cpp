#include <zeplet/projectdata/pointhotupdate.h>

#include <ostrel/moduleobject.h>
#include <zeplet/log/hostlines_p.h>
#include <zeplet/projectdata/pointrecords_p.h>
#include <zeplet/projectdata/projectrecords_p.h>

namespace zeplet
{

using ostrel::ModuleObject;

namespace
{

QString field(const ModuleObject *record, const QString &name)
{
    return record->getStr(name, QString());
}

std::unique_ptr<ModuleObject> refreshedVariable(ModuleObject *record, const QString &index)
{
    const bool isJoint = field(record, QStringLiteral("property")) == QLatin1String("joint");
    const QString type = isJoint ? QStringLiteral("jointtarget") : QStringLiteral("robtarget");
    auto entry = std::make_unique<ModuleObject>();
    const auto set
        = [&](const QString &name, const QString &text) { entry->set(nullptr, name, text, true); };
    set(QStringLiteral("name"), field(record, QStringLiteral("name")));
    set(QStringLiteral("type"), type);
    set(QStringLiteral("s_d"), index);
    set(QStringLiteral("func"), field(record, QStringLiteral("func")));
    set(QStringLiteral("task"), field(record, QStringLiteral("task")));
    ModuleObject *copy = entry->setChild(nullptr, index, QVariant());
    ModuleObject *value = pointValue(record);
    if (const ModuleObject *element = value ? value->child(index) : nullptr)
        copy->copyFrom(nullptr, *element);
    return entry;
}

} // namespace

// Whoever watches "operate" finds the position in place: it is written first.
void triggerPointHotUpdate(const QString &operation, int position)
{
    if (position < 0)
        return;
    ModuleObject *trigger = recordTree(QStringLiteral("point"))->r(QStringLiteral("hot_update"));
    ModuleObject *points = trigger->r(QStringLiteral("points"));
    points->clear(nullptr);
    points->set(nullptr, QStringLiteral("#0"), position, true);
    trigger->r(QStringLiteral("operate"))->set(nullptr, operation);
}

bool hotUpdatePersPointElement(ModuleObject *record, const QString &index)
{
    const QString element = normalizePointValueIndex(index);
    ModuleObject request;
    request.set(nullptr, QStringLiteral("operator"), QStringLiteral("pers_point_refresh"), true);
    request.r(QStringLiteral("variables"))->append(nullptr, refreshedVariable(record, element));
    const int refusal = commandProjectVariable(&request, 0);
    if (refusal != 0) {
        errorLine() << "pers_point_refresh failed, name=" << field(record, QStringLiteral("name"))
                    << " index=" << element << " ret=" << refusal;
    }
    return refusal == 0;
}

} // namespace zeplet
