#include "faultnotice.h"

#include <QEvent>
#include <brisa/thememanager.h>
#include <brisa/tone.h>

namespace panel
{

void FaultNotice::put(const QString &sentence, QWidget *page)
{
    if (!page)
        return;
    auto *notice = page->findChild<FaultNotice *>(QString(), Qt::FindDirectChildrenOnly);
    if (!notice)
        notice = new FaultNotice(page);
    notice->setText(sentence);
    notice->fit();
    notice->setVisible(true);
}

FaultNotice::FaultNotice(QWidget *page)
    : QLabel(page)
{
    setObjectName(QStringLiteral("faultNotice"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setMargin(brisa::metrics::Margin);
    setAutoFillBackground(true);
    page->installEventFilter(this);
    connect(brisa::ThemeManager::instance(), &brisa::ThemeManager::themeChanged, this,
            &FaultNotice::applyTheme);
    applyTheme();
}

bool FaultNotice::eventFilter(QObject *watched, QEvent *event)
{
    const auto type = event->type();
    if (type == QEvent::Resize || type == QEvent::Show || type == QEvent::ChildAdded)
        fit();
    return QLabel::eventFilter(watched, event);
}

void FaultNotice::fit()
{
    const int width = parentWidget()->width();
    setGeometry(0, 0, width, heightForWidth(width));
    raise();
}

void FaultNotice::applyTheme()
{
    const brisa::ToneColours colours = brisa::toneColours(brisa::Tone::Error);
    QPalette own = palette();
    own.setColor(QPalette::Window, colours.soft);
    own.setColor(QPalette::WindowText, colours.line);
    setPalette(own);
}

} // namespace panel
