#pragma once

#include "hostexport.h"

#include <QHash>
#include <QStackedWidget>
#include <QString>

namespace kest
{

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
    /** Takes the page out; with destroy the page widget is deleted. False for an unknown key. */
    bool removeItem(QObject *module, const QString &key, bool destroy);
    /** Shows the page; false for an unknown key. */
    bool switchTo(QObject *module, const QString &key);
    QWidget *page(const QString &key) const;
    QString currentKey() const;

Q_SIGNALS:
    void currentKeyChanged(const QString &key);

private:
    QHash<QString, QWidget *> m_pages;
};

} // namespace kest

/** The panel's centre area; made without a parent where the panel has none yet. Never null. */
HOST_EXPORT kest::CenterWidget *instantiatedCenterWidget();
