#pragma once

#include <QStyledItemDelegate>

namespace kit
{

/** Draws the cells of a Table. */
class CellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};

} // namespace kit
