#pragma once

#include "kit/marks.h"

#include <QVector>
#include <QWidget>

/** Marks in a row, right-aligned. */
class StateLine : public QWidget
{
    Q_OBJECT

public:
    explicit StateLine(QWidget *parent = nullptr);

    void setMarks(const QVector<kit::Mark> &marks);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QVector<kit::Mark> m_marks;
};
