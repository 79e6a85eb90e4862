#pragma once

#include <QStyledItemDelegate>

/** Draws the lines of a ProgramView: number, text, description and type. */
class LineDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

/** The font of program text. */
QFont programFont();
