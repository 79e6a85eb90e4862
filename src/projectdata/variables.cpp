#include <zeplet/projectdata/variables_p.h>

#include <ostrel/moduleobject.h>
#include <zeplet/interface/finite_p.h>
#include <zeplet/interface/interfacemanager.h>
#include <zeplet/interface/interfacemanager_p.h>
#include <zeplet/interface/nodejson_p.h>
#include <zeplet/log/hostlines_p.h>
#include <zeplet/projectdata/jsonlimits_p.h>
#include <zeplet/projectdata/projectrecords_p.h>
#include <zeplet/projectdata/recordsaving_p.h>

#include <QSet>

namespace zeplet
{

using ostrel::ModuleObject;

namespace
{

const QString kind = QStringLiteral("var");
const QString valueElement = QStringLiteral("[0][0][0]");

QString typeAt(ModuleObject *list, int place)
{
    return recordText(list, place, QStringLiteral("type"));
}

int placeOf(const QString &name)
{
    return variableList()->indexOf(QStringLiteral("name"), name);
}

void setValue(ModuleObject *record, const QVariant &value)
{
    record->r(QStringLiteral("value"))->setChild(nullptr, valueElement, value);
}

bool appendVariable(const QString &name, const QVariant &value, bool persistent)
{
    std::unique_ptr<ModuleObject> record = newRecord(kind);
    record->set(nullptr, QStringLiteral("name"), name, false);
    record->set(nullptr, QStringLiteral("type"), QString::fromLatin1(value.typeName()), false);
    record->set(nullptr, QStringLiteral("id"), variableList()->childCount(), false);
    setValue(record.get(), value);
    record->set(nullptr, QStringLiteral("pers"), persistent, false);
    if (!appendRecord(kind, std::move(record)))
        return false;
    recordTree(kind)->set(nullptr, QStringLiteral("built"), false, true);
    return true;
}

/** Holds what a variable has as its value, to put it back. */
class RememberedValue
{
public:
    explicit RememberedValue(ModuleObject *record)
        : m_value(record->r(QStringLiteral("value")))
        , m_wasThere(!m_value->isNull())
    {
        m_copy.copyFrom(nullptr, *m_value);
    }

    void restore()
    {
        if (m_wasThere)
            m_value->copyFrom(nullptr, m_copy);
        else
            m_value->remove(nullptr);
    }

private:
    ModuleObject *m_value;
    bool m_wasThere;
    ModuleObject m_copy;
};

/** Whether a variable may be added; otherwise an error line says why not. */
bool checkNew(const QString &name, const QVariant &value, bool connected)
{
    if (name.isEmpty())
        errorLine() << "addVarData: name is empty";
    else if (!connected)
        errorLine() << "addVarData: rc is not connected";
    else if (placeOf(name) >= 0)
        errorLine() << "addVarData: variable already exists:" << name;
    else if (!isFinite(value))
        errorLine() << "addVarData: value is not finite:" << name;
    else if (!canBeStored(QJsonValue::fromVariant(value)))
        errorLine() << "addVarData: value has too many levels:" << name;
    else
        return true;
    return false;
}

/** Whether a variable may be changed, likewise. */
bool checkUpdate(const QString &name, const QVariant &value, bool connected)
{
    const int place = placeOf(name);
    const QString type = typeAt(variableList(), place);
    if (name.isEmpty())
        errorLine() << "updateVarData: name is empty";
    else if (!connected)
        errorLine() << "updateVarData: rc is not connected";
    else if (place < 0)
        errorLine() << "updateVarData: variable not found:" << name;
    else if (isConnectionType(type))
        errorLine() << "updateVarData: unsupported type:" << type;
    else if (!isFinite(value))
        errorLine() << "updateVarData: value is not finite:" << name;
    else if (!canBeStored(QJsonValue::fromVariant(value)))
        errorLine() << "updateVarData: value has too many levels:" << name;
    else
        return true;
    return false;
}

QList<ModuleObject *> removableRecords(const QStringList &names)
{
    const QSet<QString> wanted(names.begin(), names.end());
    ModuleObject *list = variableList();
    QList<ModuleObject *> records;
    const int count = list->childCount();
    for (int place = 0; place < count; ++place) {
        const bool isWanted = wanted.contains(recordText(list, place, QStringLiteral("name")));
        if (isWanted && !isConnectionType(typeAt(list, place)))
            records.append(list->childAt(place));
    }
    return records;
}

} // namespace

ModuleObject *variableList()
{
    return recordList(kind);
}

bool isConnectionType(const QString &type)
{
    return type == QLatin1String("socketserver") || type == QLatin1String("socketconn")
        || type == QLatin1String("serials");
}

QJsonObject InterfaceManager::getVarObjDataByName(const QString &name)
{
    const int place = placeOfExactName(variableList(), name);
    return place < 0 ? QJsonObject() : nodeToJson(variableList()->childAt(place)).toObject();
}

QStringList InterfaceManager::getVarDataList(const QString &type)
{
    ModuleObject *list = variableList();
    QStringList names;
    const int count = list->childCount();
    for (int place = 0; place < count; ++place) {
        if (type.isEmpty() || typeAt(list, place) == type)
            names.append(recordText(list, place, QStringLiteral("name")));
    }
    return names;
}

bool InterfaceManager::addVarData(const QString &name, const QVariant &value, bool persistent)
{
    if (!checkNew(name, value, getRobotConnected()))
        return false;
    if (!appendVariable(name, value, persistent))
        return false;
    const int place = variableList()->childCount() - 1;
    if (!d->hotUpdateVar(QStringLiteral("add"), {place}, {})) {
        errorLine() << "addVarData: hot update failed:" << name;
        variableList()->removeAt(this, place);
        return false;
    }
    const bool saved = d->saveAndPushVar();
    if (!saved)
        errorLine() << "addVarData: save/push var.json failed:" << name;
    return saved;
}

bool InterfaceManager::updateVarData(const QString &name, const QVariant &value)
{
    if (!checkUpdate(name, value, getRobotConnected()))
        return false;
    const int place = placeOf(name);
    ModuleObject *record = variableList()->childAt(place);
    RememberedValue before(record);
    setValue(record, value);
    if (!d->hotUpdateVar(QStringLiteral("edit"), {place}, {name})) {
        errorLine() << "updateVarData: hot update failed:" << name;
        before.restore();
        return false;
    }
    const bool saved = d->saveAndPushVar();
    if (!saved)
        errorLine() << "updateVarData: save/push var.json failed:" << name;
    return saved;
}

bool InterfaceManager::delVarData(const QStringList &names)
{
    if (!getRobotConnected()) {
        errorLine() << "delVarData: rc is not connected";
        return false;
    }
    const QList<ModuleObject *> records = removableRecords(names);
    if (records.isEmpty() || !d->hotRemoveVar(records))
        return false;
    for (ModuleObject *record : records)
        record->remove(this);
    touch(variableList());
    const bool saved = d->saveAndPushVar();
    if (!saved)
        errorLine() << "delVarData: save/push var.json failed";
    return saved;
}

bool InterfaceManager::delVarData(const QString &name)
{
    return delVarData(QStringList(name));
}

bool InterfaceManager::InterfaceManagerPrivate::saveAndPushVar()
{
    return saveAndPushRecords(kind);
}

} // namespace zeplet
