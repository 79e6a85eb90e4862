#include <zeplet/interface/interfacemanager_p.h>

#include <ostrel/moduleobject.h>
#include <zeplet/interface/nodejson_p.h>
#include <zeplet/log/hostlines_p.h>
#include <zeplet/log/jsontext_p.h>
#include <zeplet/projectdata/projectrecords_p.h>
#include <zeplet/projectdata/variables_p.h>

namespace zeplet
{

using ostrel::ModuleObject;

namespace
{

const QString add = QStringLiteral("add");
const QString edit = QStringLiteral("edit");

/** A request to the controller about variables, none so far. */
class VariableRequest
{
public:
    explicit VariableRequest(const QString &operation)
        : m_node(QStringLiteral("temp"))
    {
        m_node.set(nullptr, QStringLiteral("operator"), operation, false);
        m_variables = m_node.setChild(nullptr, QStringLiteral("variables"), QVariantList());
    }

    /** Adds a copy of the record; returns what goes to the controller. */
    ModuleObject *append(const ModuleObject &record)
    {
        auto copy = std::make_unique<ModuleObject>();
        copy->copyFrom(nullptr, record);
        for (const char *ownField : {"id", "description"}) {
            if (ModuleObject *field = copy->child(QLatin1String(ownField)))
                field->remove(nullptr);
        }
        return m_variables->append(nullptr, std::move(copy));
    }

    /** True when the controller took it. */
    bool send()
    {
        statusLine() << "hotUpdateVar:" << jsonText(nodeToJson(&m_node));
        return commandProjectVariable(&m_node, -1) == 0;
    }

private:
    ModuleObject m_node;
    ModuleObject *m_variables;
};

bool canBeUpdated(const ModuleObject *record)
{
    return record && record->childCount() > 0
        && !isConnectionType(record->getStr(QStringLiteral("type"), QString()));
}

bool isValidUpdate(const QString &operation, int indexes, int oldNames)
{
    if (indexes == 0)
        return false;
    if (operation != add && operation != edit) {
        errorLine() << "un support hot update oper:" << operation;
        return false;
    }
    if (operation == add || indexes == oldNames)
        return true;
    errorLine() << "edit: index size=" << indexes << " oldname size:" << oldNames;
    return false;
}

} // namespace

bool InterfaceManager::InterfaceManagerPrivate::hotUpdateVar(const QString &operation,
                                                             const QList<int> &indexes,
                                                             const QStringList &oldNames)
{
    if (!isValidUpdate(operation, indexes.size(), oldNames.size()))
        return false;
    VariableRequest request(operation);
    for (int i = 0; i < indexes.size(); ++i) {
        const ModuleObject *record = variableList()->childAt(indexes.at(i));
        if (!canBeUpdated(record))
            continue;
        ModuleObject *entry = request.append(*record);
        if (operation == edit)
            entry->set(nullptr, QStringLiteral("old_name"), oldNames.at(i), false);
    }
    return request.send();
}

bool InterfaceManager::InterfaceManagerPrivate::hotRemoveVar(const QList<ModuleObject *> &records)
{
    if (records.isEmpty())
        return true;
    VariableRequest request(QStringLiteral("remove"));
    for (const ModuleObject *record : records)
        request.append(*record);
    return request.send();
}

} // namespace zeplet
