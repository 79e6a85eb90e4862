#pragma once

#include "brisa/physicalbutton.h"
#include "hostexport.h"

#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

namespace qo
{
namespace kivra
{

/** One module's page of physical keys. */
struct KeyPage {
    QObject *module = nullptr; ///< identity only
    QString name;
    QList<brisa::PhysicalButton> rows[2];
    QStringList extra;
    bool enabled = true;
};
using KeyPagePtr = QSharedPointer<KeyPage>;

/** All registered pages of keys, in the order of registration. A module's pages go with it, and
 *  their callbacks are dropped at once. GUI thread. */
class HOST_EXPORT PhysicalButtonRegistry : public QObject
{
    Q_OBJECT

public:
    static PhysicalButtonRegistry &instance();

    void registerPage(QObject *module, const QString &name,
                      const QList<brisa::PhysicalButton> &first,
                      const QList<brisa::PhysicalButton> &second, const QStringList &extra);
    void setEnabled(QObject *module, const QString &name, bool enabled);
    /** Drops all pages of a module, of null those that are nobody's. */
    void removeOwnedBy(QObject *module);

    const QList<KeyPagePtr> &pages() const;
    /** The page of keys to show beside a centre page: the one that bears its key as name, names it
     *  as extra, or belongs to the same module; null where there is none. */
    KeyPagePtr pageFor(const QString &centreKey, const QObject *centreOwner) const;

    /** Calls the key's callback, if its page is there and enabled (a release needs no enabling).
     *  What it throws ends in the log banner. */
    static void press(const KeyPagePtr &page, int row, int column, bool down);

Q_SIGNALS:
    /** Pages came, went or were replaced, or became enabled or disabled. */
    void changed();

private:
    PhysicalButtonRegistry() = default;
    KeyPagePtr find(const QObject *module, const QString &name) const;

    QList<KeyPagePtr> m_pages;
};

} // namespace kivra
} // namespace qo
