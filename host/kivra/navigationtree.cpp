#include "kivra/navigationtree_p.h"

#include "brisa/languagemanager.h"
#include "ostrel/moduleobject.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <memory>

namespace qo
{
namespace kivra
{

namespace
{

// "robot.pack" is kivra.page.robot.page.pack; an empty parent is the root.
QString groupKey(const QString &parent)
{
    const QString root = QStringLiteral("kivra.page");
    if (parent.isEmpty())
        return root;
    return root + QLatin1Char('.')
        + QString(parent).replace(QLatin1Char('.'), QStringLiteral(".page."));
}

ostrel::ModuleObject *pageList(const QString &parent)
{
    return m(groupKey(parent) + QStringLiteral(".page"));
}

QString step(int index)
{
    return QLatin1Char('#') + QString::number(index);
}

NavigationEntry entryFromJson(const QJsonObject &json)
{
    return {inPanelLanguage(json.value(QLatin1String("title")).toString()),
            json.value(QLatin1String("icon")).toString(),
            json.value(QLatin1String("nav")).toString()};
}

// At the end, where nearly all go, without touching the others.
void insertEntry(QObject *origin, ostrel::ModuleObject *list, int at, const QJsonObject &entry)
{
    if (at == list->childCount()) {
        auto node = std::make_unique<ostrel::ModuleObject>();
        node->importFromJson(nullptr, entry, true, true, false);
        list->append(origin, std::move(node));
        return;
    }
    QJsonArray pages = list->exportToJson(true).toArray();
    pages.insert(at, entry);
    list->importFromJson(origin, pages, true, true, true);
}

} // namespace

QString inPanelLanguage(const QString &title)
{
    return title.isEmpty() ? title
                           : QCoreApplication::translate("navigation", title.toUtf8().constData());
}

NavigationTree::NavigationTree()
{
    connect(brisa::LanguageManager::instance(), &brisa::LanguageManager::languageChanged, this,
            &NavigationTree::schedule);
}

// Lives to the end of the process, like the store that it watches.
NavigationTree &NavigationTree::instance()
{
    static auto *const tree = new NavigationTree;
    return *tree;
}

ostrel::ModuleObject *NavigationTree::addPage(QObject *module, const QString &title,
                                              const QString &parent, const QString &icon, int index)
{
    const QString id = ostrel::ModuleObject::generateId();
    ostrel::ModuleObject *const list = pageList(parent);
    const QJsonObject entry {{"id", id}, {"title", title}, {"icon", icon}, {"nav", ""}};
    const int count = list->childCount();
    const int at = index < 0 ? count : qMin(index, count);
    insertEntry(module, list, at, entry);
    watchGroup(parent);
    if (module) {
        m_owned.insert(module, {parent, id});
        connect(module, &QObject::destroyed, this, &NavigationTree::removeOwnedBy,
                Qt::UniqueConnection);
    }
    return list->r(step(at));
}

void NavigationTree::addGroup(const QString &parent, const QString &title)
{
    m(groupKey(parent))->set(nullptr, QStringLiteral("title"), title, true);
    watchGroup(parent);
}

QVector<NavigationGroup> NavigationTree::groups() const
{
    QVector<NavigationGroup> groups;
    for (const QString &parent : m_parents) {
        NavigationGroup group;
        group.title
            = inPanelLanguage(m(groupKey(parent))->getStr(QStringLiteral("title"), QString()));
        const QJsonArray pages = pageList(parent)->exportToJson(true).toArray();
        for (const QJsonValue &page : pages)
            group.entries.append(entryFromJson(page.toObject()));
        groups.append(group);
    }
    return groups;
}

QString NavigationTree::titleOf(QObject *module) const
{
    const QList<OwnedEntry> entries = m_owned.values(module);
    if (entries.isEmpty())
        return {};
    const OwnedEntry &first = entries.last(); // the hash lists the newest first
    const QJsonArray pages = pageList(first.parent)->exportToJson(true).toArray();
    for (const QJsonValue &page : pages) {
        if (page.toObject().value(QLatin1String("id")).toString() == first.id)
            return entryFromJson(page.toObject()).title;
    }
    return {};
}

void NavigationTree::watchGroup(const QString &parent)
{
    if (!m_parents.contains(parent))
        m_parents.append(parent);
    for (ostrel::ModuleObject *node : {pageList(parent), m(groupKey(parent) + ".title")})
        connect(node, &ostrel::ModuleObject::changed, this, &NavigationTree::schedule,
                Qt::UniqueConnection);
    schedule();
}

void NavigationTree::watchEntries(const QString &parent)
{
    ostrel::ModuleObject *const list = pageList(parent);
    const int count = list->exportToJson(true).toArray().size();
    for (int i = 0; i < count; ++i) {
        for (const char *member : {"title", "icon", "nav"})
            connect(list->r(step(i))->r(QLatin1String(member)), &ostrel::ModuleObject::changed,
                    this, &NavigationTree::schedule, Qt::UniqueConnection);
    }
}

void NavigationTree::removeOwnedBy(QObject *module)
{
    const QList<OwnedEntry> entries = m_owned.values(module);
    m_owned.remove(module);
    for (const OwnedEntry &entry : entries)
        removeEntry(entry);
}

void NavigationTree::removeEntry(const OwnedEntry &entry)
{
    ostrel::ModuleObject *const list = pageList(entry.parent);
    QJsonArray pages = list->exportToJson(true).toArray();
    for (int i = 0; i < pages.size(); ++i) {
        if (pages.at(i).toObject().value(QLatin1String("id")).toString() != entry.id)
            continue;
        pages.removeAt(i);
        list->importFromJson(nullptr, pages, true, true, true);
        schedule();
        return;
    }
}

void NavigationTree::schedule()
{
    if (m_scheduled)
        return;
    m_scheduled = true;
    QMetaObject::invokeMethod(this, &NavigationTree::announce, Qt::QueuedConnection);
}

void NavigationTree::announce()
{
    m_scheduled = false;
    for (const QString &parent : qAsConst(m_parents))
        watchEntries(parent);
    Q_EMIT changed();
}

} // namespace kivra
} // namespace qo
