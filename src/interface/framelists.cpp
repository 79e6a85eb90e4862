#include <zeplet/interface/interfacemanager.h>

#include <ostrel/moduleobject.h>

namespace zeplet
{

namespace
{

// The names of all records of these lists; of those of one type only, if a type is given.
QStringList namesOf(const QStringList &lists, const QString &type = QString())
{
    QStringList names;
    for (const QString &key : lists) {
        ostrel::ModuleObject *const list = m(key, nullptr);
        for (int i = 0; i < list->childCount(); ++i) {
            const ostrel::ModuleObject *const record = list->childAt(i);
            if (type.isEmpty() || record->getStr(QStringLiteral("type"), QString()) == type)
                names.append(record->getStr(QStringLiteral("name"), QString()));
        }
    }
    return names;
}

QStringList variablesOfType(const QString &type)
{
    return namesOf({QStringLiteral("tavik.project.var.system_list"),
                    QStringLiteral("tavik.project.var._list")},
                   type);
}

} // namespace

QString InterfaceManager::getCurTool()
{
    return m(QStringLiteral("tavik.toolpage.tool"), nullptr)->getStr(QStringLiteral("tool0"));
}

QString InterfaceManager::getCurWobj()
{
    return m(QStringLiteral("tavik.toolpage.wobj"), nullptr)->getStr(QStringLiteral("wobj0"));
}

QStringList InterfaceManager::getToolList()
{
    return namesOf({QStringLiteral("tavik.project.tool.system_list"),
                    QStringLiteral("tavik.project.tool._list"),
                    QStringLiteral("tavik.setting.g_tool.g_tools")});
}

QStringList InterfaceManager::getWobjList()
{
    return namesOf({QStringLiteral("tavik.project.wobj.system_list"),
                    QStringLiteral("tavik.project.wobj._list"),
                    QStringLiteral("tavik.setting.g_wobj.g_wobjs")});
}

QStringList InterfaceManager::getSpeedList()
{
    return variablesOfType(QStringLiteral("speed"));
}

QStringList InterfaceManager::getZoneList()
{
    return variablesOfType(QStringLiteral("zone"));
}

} // namespace zeplet
