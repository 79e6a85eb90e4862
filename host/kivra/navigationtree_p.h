#pragma once

#include <QMultiHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

namespace ostrel
{
class ModuleObject;
}

namespace qo
{
namespace kivra
{

struct NavigationEntry {
    QString title;
    QString icon;
    QString nav; ///< key of the centre page; empty while the entry leads nowhere
    bool operator==(const NavigationEntry &other) const
    {
        return title == other.title && icon == other.icon && nav == other.nav;
    }
};

struct NavigationGroup {
    QString title;
    QVector<NavigationEntry> entries;
    bool operator==(const NavigationGroup &other) const
    {
        return title == other.title && entries == other.entries;
    }
};

/** A title or a key's label, which modules give in English, in the language of the panel. */
QString inPanelLanguage(const QString &title);

/**
 * The navigation tree in the data store: it enters pages, withdraws those of modules that go, and
 * says when what the store holds may have changed, whoever changed it.
 *
 * Entries are found again by an identifier of their own: others rewrite a list as a whole, and then
 * neither an entry's node nor its place stays what it was.
 */
class NavigationTree : public QObject
{
    Q_OBJECT

public:
    static NavigationTree &instance();

    ostrel::ModuleObject *addPage(QObject *module, const QString &title, const QString &parent,
                                  const QString &icon, int index);
    void addGroup(const QString &parent, const QString &title);

    /** What the store holds now, titles in the language of the panel, groups in the order in which
     * their parents were first named. */
    QVector<NavigationGroup> groups() const;
    /** The title of the module's first entry, in the language of the panel; empty for a module
     * without one. */
    QString titleOf(QObject *module) const;

Q_SIGNALS:
    /** Emitted once from the event loop for any number of changes. */
    void changed();

private:
    struct OwnedEntry {
        QString parent;
        QString id;
    };

    NavigationTree();
    void watchGroup(const QString &parent);
    void watchEntries(const QString &parent);
    void removeOwnedBy(QObject *module);
    void removeEntry(const OwnedEntry &entry);
    void schedule();
    void announce();

    QStringList m_parents;
    QMultiHash<QObject *, OwnedEntry> m_owned;
    bool m_scheduled = false;
};

} // namespace kivra
} // namespace qo
