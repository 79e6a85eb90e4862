#include "kivra/physicalbuttonregistry_p.h"

#include "brisa/managerhelper.h"
#include "kivra/navigationtree_p.h"

#include <exception>

namespace qo
{
namespace kivra
{

namespace
{

void reportFailure(QObject *module, const QString &label, const QString &problem)
{
    brisa::ManagerHelper::throwLog(module, QStringLiteral("error"),
                                   PhysicalButtonRegistry::tr("The key \"%1\" failed: %2")
                                       .arg(inPanelLanguage(label), problem));
}

} // namespace

// Lives to the end of the process: modules may go after the last widget.
PhysicalButtonRegistry &PhysicalButtonRegistry::instance()
{
    static auto *const registry = new PhysicalButtonRegistry;
    return *registry;
}

void PhysicalButtonRegistry::registerPage(QObject *module, const QString &name,
                                          const QList<brisa::PhysicalButton> &first,
                                          const QList<brisa::PhysicalButton> &second,
                                          const QStringList &extra)
{
    const KeyPagePtr earlier = find(module, name);
    const auto page = KeyPagePtr::create();
    page->module = module;
    page->name = name;
    page->rows[0] = first;
    page->rows[1] = second;
    page->extra = extra;
    if (earlier)
        m_pages.replace(m_pages.indexOf(earlier), page);
    else
        m_pages.append(page);
    if (module)
        connect(module, &QObject::destroyed, this, &PhysicalButtonRegistry::removeOwnedBy,
                Qt::UniqueConnection);
    Q_EMIT changed();
}

void PhysicalButtonRegistry::setEnabled(QObject *module, const QString &name, bool enabled)
{
    const KeyPagePtr page = find(module, name);
    if (!page || page->enabled == enabled)
        return;
    page->enabled = enabled;
    Q_EMIT changed();
}

const QList<KeyPagePtr> &PhysicalButtonRegistry::pages() const
{
    return m_pages;
}

KeyPagePtr PhysicalButtonRegistry::pageFor(const QString &centreKey,
                                           const QObject *centreOwner) const
{
    for (const KeyPagePtr &page : m_pages) {
        if (page->name == centreKey || page->extra.contains(centreKey))
            return page;
    }
    for (const KeyPagePtr &page : m_pages) {
        if (centreOwner && page->module == centreOwner)
            return page;
    }
    return {};
}

void PhysicalButtonRegistry::press(const KeyPagePtr &page, int row, int column, bool down)
{
    if (down && !page->enabled)
        return;
    // A copy: the callback may replace its own page or destroy its module.
    const brisa::PhysicalButton key = page->rows[row].value(column);
    if (!key.callback)
        return;
    try {
        key.callback(down);
    } catch (const std::exception &exception) {
        reportFailure(page->module, key.label, QString::fromLocal8Bit(exception.what()));
    } catch (...) {
        reportFailure(page->module, key.label, tr("an unknown exception"));
    }
}

KeyPagePtr PhysicalButtonRegistry::find(const QObject *module, const QString &name) const
{
    for (const KeyPagePtr &page : m_pages) {
        if (page->module == module && page->name == name)
            return page;
    }
    return {};
}

void PhysicalButtonRegistry::removeOwnedBy(QObject *module)
{
    for (int i = m_pages.size() - 1; i >= 0; --i) {
        if (m_pages.at(i)->module != module)
            continue;
        const KeyPagePtr page = m_pages.takeAt(i);
        page->module = nullptr;
        page->rows[0].clear();
        page->rows[1].clear();
    }
    Q_EMIT changed();
}

} // namespace kivra
} // namespace qo
