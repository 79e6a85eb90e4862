#include "clocklabel.h"

#include <QTime>
#include <brisa/thememanager.h>

namespace panel
{

ClockLabel::ClockLabel(QWidget *parent)
    : QLabel(parent)
{
    setFont(brisa::ThemeManager::font(brisa::TextSize::Title));
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ClockLabel::refresh);
    refresh();
}

void ClockLabel::refresh()
{
    const QTime now = QTime::currentTime();
    setText(now.toString(QStringLiteral("HH:mm")));
    m_timer.start(60000 - now.second() * 1000 - now.msec());
}

} // namespace panel
