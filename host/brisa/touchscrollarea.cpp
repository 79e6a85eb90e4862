#include "brisa/touchscrollarea_p.h"

#include <QScroller>

namespace brisa
{

TouchScrollArea::TouchScrollArea(By by, QWidget *parent)
    : QScrollArea(parent)
    , m_by(by)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setContent(new QWidget);
    viewport()->setAutoFillBackground(false);
}

void TouchScrollArea::setContent(QWidget *content)
{
    setWidget(content);
    content->setAutoFillBackground(false);
}

// Without this the application would go on asking the recognizer of an area that has gone.
TouchScrollArea::~TouchScrollArea()
{
    if (QScroller::hasScroller(viewport()))
        QScroller::ungrabGesture(viewport());
}

// Not earlier: most pages are not shown in a session, and none before it.
void TouchScrollArea::showEvent(QShowEvent *event)
{
    QScrollArea::showEvent(event);
    if (m_by == By::Flick && !QScroller::hasScroller(viewport()))
        QScroller::grabGesture(viewport(), QScroller::TouchGesture);
}

} // namespace brisa
