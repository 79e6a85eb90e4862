#pragma once

#include "hostexport.h"

#include <QString>
#include <QWidget>

class QScrollArea;
class QStackedWidget;
class QToolButton;

namespace brisa
{
class ElidedLabel;
}

namespace kest
{

class KeyedWidgets;

/**
 * A side bar that shows one of its keyed pages below a title, with a button that closes the bar and
 * one that chooses among several pages. A page's window title is its title. A page larger than
 * the bar is scrolled. Hidden until someone
 * shows it, and when its last page goes. GUI thread.
 */
class HOST_EXPORT ExpandSideBar : public QWidget
{
    Q_OBJECT

public:
    explicit ExpandSideBar(QWidget *parent = nullptr);
    ~ExpandSideBar() override;

    /** Adds a page; false for a null page or a key that is taken. It goes when its module goes. */
    bool addPage(QObject *module, const QString &key, QWidget *page);
    /** Shows the page in the bar (not the bar itself); false for an unknown key. */
    bool switchTo(QObject *module, const QString &key);
    /** Takes the page out, hidden and without parent; with destroy it is deleted. False for an
     *  unknown key and for a page of another module; a null module is the host. */
    bool removePage(QObject *module, const QString &key, bool destroy);
    QWidget *page(const QString &key) const;
    QString currentKey() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void buildLayout();
    void applyTheme();
    void refreshHeader();
    void choosePage();
    QString titleOf(const QWidget *page) const;

    KeyedWidgets *m_pages;
    QStackedWidget *m_stack;
    QScrollArea *m_scroll = nullptr;
    brisa::ElidedLabel *m_title;
    QToolButton *m_choose;
    QToolButton *m_close;
};

} // namespace kest

/** The right side bar: the first one alive; null where the host runs without one. */
HOST_EXPORT kest::ExpandSideBar *instantiatedRightExpandSideWidget();
