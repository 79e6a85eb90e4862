#include "instructionbox.h"

#include "plugincall.h"

#include <QEvent>
#include <QLabel>
#include <QScroller>
#include <brisa/basecontentwidget.h>
#include <brisa/thememanager.h>

namespace metrics = brisa::metrics;

namespace
{

constexpr int Highest = 380;

} // namespace

InstructionBox::InstructionBox(QWidget *parent)
    : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setStyleSheet(QStringLiteral("QScrollArea, QScrollArea > QWidget > QWidget "
                                 "{ background: transparent; border: none; }"));
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
}

InstructionBox::~InstructionBox()
{
    QScroller::ungrabGesture(viewport());
}

QString InstructionBox::make(const brisa::RlManager::WidgetMaker &maker)
{
    delete takeWidget();
    brisa::BaseContentWidget *made = nullptr;
    // A copy: a maker that registers its type anew replaces itself in the record.
    QString fault = faultOf([&, maker] { made = maker(viewport()); });
    if (!fault.isEmpty())
        return fault;
    if (!made)
        return tr("its plugin gave no widget");
    m_content = made;
    setWidget(made);
    m_bare = made->findChildren<QWidget *>().isEmpty() && !made->layout();
    if (m_bare) {
        auto *const label = new QLabel(tr("There is nothing to enter."), made);
        label->setProperty("role", QStringLiteral("muted"));
        label->setMinimumHeight(metrics::Touch);
        made->setMinimumHeight(metrics::Touch);
    }
    made->show();
    return QString();
}

QString InstructionBox::fill(const QString &line)
{
    return ask([&](brisa::BaseContentWidget *content) { content->FillWith(line); });
}

QString InstructionBox::checkInsert(bool *will)
{
    return ask([&](brisa::BaseContentWidget *content) { *will = content->CheckInsert(); });
}

QString InstructionBox::checkReplace(bool *will)
{
    return ask([&](brisa::BaseContentWidget *content) { *will = content->CheckReplace(); });
}

QString InstructionBox::read(QString *text)
{
    return ask([&](brisa::BaseContentWidget *content) { *text = content->ToString(); });
}

QString InstructionBox::ask(const std::function<void(brisa::BaseContentWidget *)> &question)
{
    if (!m_content)
        return tr("its plugin has taken the widget away");
    return faultOf([&] { question(m_content); });
}

// By now its widgets have the looks of the card.
void InstructionBox::showEvent(QShowEvent *event)
{
    QScrollArea::showEvent(event);
    fit();
}

bool InstructionBox::eventFilter(QObject *watched, QEvent *event)
{
    const bool done = QScrollArea::eventFilter(watched, event);
    if (event->type() == QEvent::LayoutRequest)
        fit();
    return done;
}

/** As high as the plugin's widget, within what a card has. */
void InstructionBox::fit()
{
    if (!m_content)
        return;
    const int wanted = qMax(m_content->sizeHint().height(), m_content->minimumHeight());
    setFixedHeight(qBound(int(metrics::Touch), wanted, Highest));
}
