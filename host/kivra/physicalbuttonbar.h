#pragma once

#include "hostexport.h"

#include <QList>
#include <QSharedPointer>
#include <QString>
#include <QWidget>

class QGridLayout;
class QScrollArea;
class QToolButton;

namespace qo
{
namespace kivra
{

struct KeyPage;
class PhysicalKey;

/**
 * The panel's physical keys: the two rows of the current page of keys. The page follows the centre
 * area, and the operator may choose another with the selector. Hidden while nothing is registered.
 * Keys that do not fit can be scrolled to. Horizontal: rows one above the other; vertical: the rows
 * are columns. Make the panel's centre area first. GUI thread.
 */
class HOST_EXPORT PhysicalButtonBar : public QWidget
{
    Q_OBJECT

public:
    explicit PhysicalButtonBar(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~PhysicalButtonBar() override;

    /** Name of the page of keys that is shown; empty where there is none. */
    QString currentPage() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void buildLayout();
    void buildKeyArea();
    void followCentre();
    void followRegistry();
    void scheduleRefresh();
    void showPage(const QSharedPointer<KeyPage> &page);
    void refreshSelector();
    void addKeys();
    void fitHeight();
    QList<PhysicalKey *> takeKeys();
    void choosePage();

    Qt::Orientation m_orientation;
    QToolButton *m_selector;
    QScrollArea *m_scroll;
    QGridLayout *m_keys;
    QSharedPointer<KeyPage> m_page;
    bool m_scheduled = false;
};

} // namespace kivra
} // namespace qo
