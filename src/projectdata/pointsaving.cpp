#include <zeplet/projectdata/pointsaving.h>

#include <ostrel/moduleobject.h>
#include <zeplet/projectdata/pointhotupdate.h>
#include <zeplet/projectdata/pointrecords_p.h>
#include <zeplet/projectdata/recordsaving_p.h>

namespace zeplet
{

bool syncPointElementAfterEdit(ostrel::ModuleObject *record, int position, const QString &index)
{
    const QString element = normalizePointValueIndex(index);
    const bool isPersistent
        = record->getStr(QStringLiteral("pers"), QString()) == QLatin1String("true");
    if (isPersistent && element != firstPointElement())
        return hotUpdatePersPointElement(record, element) && saveAndPushPoint();
    triggerPointHotUpdate(QStringLiteral("edit"), position);
    return saveAndPushPoint();
}

bool saveAndPushPoint()
{
    return saveAndPushRecords(QStringLiteral("point"));
}

} // namespace zeplet
