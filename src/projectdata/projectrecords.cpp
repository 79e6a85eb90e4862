#include <zeplet/projectdata/projectrecords_p.h>

#include <nexo/nexo.h>
#include <ostrel/moduleobject.h>
#include <zeplet/interface/nodejson_p.h>
#include <zeplet/log/hostlines_p.h>

#include <QJsonArray>

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

QString recordText(ModuleObject *list, int place, const QString &field)
{
    if (list->isList())
        return list->getStr(QStringLiteral("#%1.%2").arg(QString::number(place), field), QString());
    const ModuleObject *record = list->childAt(place);
    return record ? record->getStr(field, QString()) : QString();
}

int placeOfExactName(ModuleObject *list, const QString &name)
{
    const QString field = QStringLiteral("name");
    const int found = list->indexOf(field, name);
    const auto isText = [&] {
        return list->childAt(found)->child(field)->value().userType() == QMetaType::QString;
    };
    if (!name.isEmpty() && (found < 0 || isText()))
        return found;
    // A record whose name is no text has an empty one in JSON.
    const QJsonArray records = nodeToJson(list).toArray();
    for (int place = 0; place < records.size(); ++place) {
        if (records.at(place)[field].toString() == name)
            return place;
    }
    return -1;
}

std::unique_ptr<ModuleObject> newRecord(const QString &kind)
{
    auto record = std::make_unique<ModuleObject>(ModuleObject::generateId());
    record->copyFrom(nullptr, *recordTree(kind)->r(QStringLiteral("default")));
    return record;
}

bool appendRecord(const QString &kind, std::unique_ptr<ModuleObject> record)
{
    ModuleObject *added = recordList(kind)->append(nullptr, std::move(record));
    if (added)
        touch(added);
    else
        errorLine() << "the project data hold no list of records, kind=" << kind;
    return added != nullptr;
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
