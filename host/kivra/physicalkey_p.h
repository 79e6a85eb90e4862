#pragma once

#include "kivra/physicalbuttonregistry_p.h"

#include <QAbstractButton>

namespace qo
{
namespace kivra
{

/**
 * One key on the panel. Each press is followed by exactly one release, also where the key is
 * hidden, disabled or removed while it is held.
 */
class PhysicalKey : public QAbstractButton
{
    Q_OBJECT

public:
    PhysicalKey(const KeyPagePtr &page, int row, int column, QWidget *parent);
    ~PhysicalKey() override;

    QSize sizeHint() const override;
    /** Releases a held key. */
    void release();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void press();
    QRect textBox() const;
    bool textFits() const;
    void paintFace(QPainter &painter) const;
    QIcon icon() const;

    KeyPagePtr m_page;
    int m_row;
    int m_column;
    bool m_held = false;
};

} // namespace kivra
} // namespace qo
