#include "stateline.h"

#include <QPainter>
#include <QStringList>
#include <brisa/thememanager.h>

StateLine::StateLine(QWidget *parent)
    : QWidget(parent)
{
    setMinimumHeight(brisa::metrics::Touch);
    connect(brisa::ThemeManager::instance(), &brisa::ThemeManager::themeChanged, this,
            qOverload<>(&QWidget::update));
}

void StateLine::setMarks(const QVector<kit::Mark> &marks)
{
    if (marks == m_marks)
        return;
    m_marks = marks;
    QStringList texts;
    for (const kit::Mark &mark : marks)
        texts.append(mark.text);
    setAccessibleName(texts.join(QStringLiteral(", ")));
    update();
}

void StateLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QRect room = rect();
    for (int i = m_marks.size() - 1; i >= 0; --i) {
        const int width = qMin(kit::markWidth(m_marks.at(i)), room.width());
        kit::drawMark(&painter, QRect(room.right() - width + 1, room.y(), width, room.height()),
                      m_marks.at(i));
        room.setRight(room.right() - width - brisa::metrics::Grid);
    }
}
