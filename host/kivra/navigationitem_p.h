#pragma once

#include "kivra/navigationtree_p.h"

#include <QAbstractButton>

namespace qo
{
namespace kivra
{

/** One entry of the navigation: picture and title, a bar of the accent where it is current. */
class NavigationItem : public QAbstractButton
{
    Q_OBJECT

public:
    NavigationItem(const NavigationEntry &entry, QWidget *parent);

    QString nav() const;
    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect textBox() const;
    QPixmap picture(const QColor &colour) const;

    NavigationEntry m_entry;
};

} // namespace kivra
} // namespace qo
