#pragma once

#include "hostexport.h"

#include <QStackedWidget>
#include <QString>

namespace kest
{

class KeyedWidgets;

/** The panel's centre area: one page at a time, found by key. GUI thread. */
class HOST_EXPORT CenterWidget : public QStackedWidget
{
    Q_OBJECT

public:
    explicit CenterWidget(QWidget *parent = nullptr);
    ~CenterWidget() override;

    /** Adds a page for a module; false for a null page or a key that is taken. The page is
     *  reparented to the centre area, and goes when its module goes. */
    bool addPage(QObject *module, const QString &key, QWidget *page);
    /** Takes the page out, hidden and without parent; with destroy the page widget is deleted.
     * False for an unknown key and for a page of another module; a null module is the host. */
    bool removeItem(QObject *module, const QString &key, bool destroy);
    /** Shows the page; false for an unknown key. */
    bool switchTo(QObject *module, const QString &key);
    QWidget *page(const QString &key) const;
    QString currentKey() const;
    /** The module that added the page; null for the host's own and for an unknown key. */
    QObject *owner(const QString &key) const;

    /** No page dictates the panel's size. */
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /** Another page is shown; empty where the last one has gone. */
    void currentKeyChanged(const QString &key);

private:
    void announceCurrent();

    KeyedWidgets *m_pages;
    QString m_announced;
};

} // namespace kest

/** The panel's centre area: the first one alive, made without a parent where there is none. Never
 *  null; owned by its parent. */
HOST_EXPORT kest::CenterWidget *instantiatedCenterWidget();
