#include "brisa/translated.h"

#include <QEvent>
#include <QWidget>

namespace brisa
{

namespace
{

/** Hears of the language as its widget does: Qt sends the event to every widget of a window. */
class Speaker : public QObject
{
public:
    Speaker(QWidget *widget, std::function<void()> say)
        : QObject(widget)
        , m_say(std::move(say))
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange)
            m_say();
        return false;
    }

private:
    const std::function<void()> m_say;
};

} // namespace

void translated(QWidget *widget, std::function<void()> say)
{
    say();
    new Speaker(widget, std::move(say));
}

} // namespace brisa
