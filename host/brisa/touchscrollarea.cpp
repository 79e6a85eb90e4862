#include "brisa/touchscrollarea_p.h"

#include <QScroller>

namespace brisa
{

TouchScrollArea::TouchScrollArea(By by, QWidget *parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWidget(new QWidget);
    widget()->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    if (by == By::Flick)
        QScroller::grabGesture(viewport(), QScroller::TouchGesture);
}

// Without this the application would go on asking the recognizer of an area that has gone.
TouchScrollArea::~TouchScrollArea()
{
    QScroller::ungrabGesture(viewport());
}

} // namespace brisa
