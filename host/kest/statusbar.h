#pragma once

#include "hostexport.h"

#include <QString>
#include <QWidget>

class QHBoxLayout;
class QScrollArea;

namespace kest
{

class BModule;
class KeyedWidgets;

/**
 * The panel's status bar: keyed items in a row. The stretch element
 * "tavik.body.statuspage.wgtStrech2" is there from the start; plugin items are put before it, to
 * its left, and what the host adds at the end sits to its right. GUI thread.
 */
class HOST_EXPORT StatusBar : public QWidget
{
    Q_OBJECT

public:
    explicit StatusBar(QWidget *parent = nullptr);
    ~StatusBar() override;

    /** Inserts widget before the item named by beforeKey (at the end where there is none); false
     *  for a null widget or a key that is taken. The item goes when its module goes. */
    bool addBeforeItem(BModule *module, const QString &key, const QString &beforeKey,
                       QWidget *widget);
    /** Takes the item out, hidden and without parent; with destroy it is deleted. False for an
     *  unknown key and for an item of another module; a null module is the host. */
    bool removeItem(BModule *module, const QString &key, bool destroy);
    QWidget *item(const QString &key) const;

    /** No item dictates the panel's width. */
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    KeyedWidgets *m_items;
    QHBoxLayout *m_row;
    QScrollArea *m_strip; ///< modules' items left of the stretch
};

} // namespace kest

/** The status bar as seen by a module: the first one alive, made without a parent where there is
 *  none. Never null; owned by its parent. */
HOST_EXPORT kest::StatusBar *instantiatedStatusBar(kest::BModule *module);
