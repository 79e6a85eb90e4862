#pragma once

#include "hostexport.h"

#include <QString>
#include <QWidget>

namespace kest
{

class BModule;

/** The panel's status bar: keyed items in a row, with a stretch element between host and plugin
 *  items. GUI thread. */
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
};

} // namespace kest

/** The status bar as seen by a module; made without a parent where the panel has none. Never null. */
HOST_EXPORT kest::StatusBar *instantiatedStatusBar(kest::BModule *module);
