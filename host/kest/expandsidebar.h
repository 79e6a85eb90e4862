#pragma once

#include "hostexport.h"

#include <QString>
#include <QWidget>

namespace kest
{

/** A side bar that shows one of its keyed pages. GUI thread. */
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
};

} // namespace kest

/** The right side bar; null where the host runs without one. */
HOST_EXPORT kest::ExpandSideBar *instantiatedRightExpandSideWidget();
