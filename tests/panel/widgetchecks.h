#pragma once

#include <QAbstractButton>
#include <QDebug>
#include <QLabel>
#include <QScrollArea>
#include <QStringList>
#include <QWidget>

/** What is wrong with the looks of a window, in words. */
namespace widgetchecks
{

constexpr int smallestTouch = 53; // 9 mm on a 10.1 inch screen of 1280 x 800

inline QString describe(const QWidget *widget)
{
    QString text;
    QDebug(&text) << widget << "in" << widget->parentWidget();
    return text;
}

/** Content that may be larger than what is seen of it. */
inline bool isScrolled(const QWidget *widget)
{
    const QWidget *const viewport = widget->parentWidget();
    return viewport && qobject_cast<const QAbstractScrollArea *>(viewport->parentWidget());
}

inline bool isCut(const QWidget *widget)
{
    if (isScrolled(widget) || widget->isWindow())
        return false;
    return !widget->parentWidget()->rect().contains(widget->geometry());
}

inline bool isTextCut(const QWidget *widget)
{
    if (const auto *const label = qobject_cast<const QLabel *>(widget)) {
        if (label->wordWrap())
            return label->height() < label->heightForWidth(label->width());
        return label->width() < label->sizeHint().width()
            || label->height() < label->sizeHint().height();
    }
    const auto *const button = qobject_cast<const QAbstractButton *>(widget);
    return button && !button->text().isEmpty()
        && button->width() < button->minimumSizeHint().width();
}

inline bool isTooSmallToTouch(const QWidget *widget)
{
    return qobject_cast<const QAbstractButton *>(widget)
        && (widget->width() < smallestTouch || widget->height() < smallestTouch);
}

/** One line for each visible widget below window that is cut, cuts its text or is hard to touch. */
inline QStringList faults(const QWidget *window)
{
    QStringList faults;
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *const widget : widgets) {
        if (!widget->isVisible())
            continue;
        if (isCut(widget))
            faults += "cut: " + describe(widget);
        if (isTextCut(widget))
            faults += "text cut: " + describe(widget);
        if (isTooSmallToTouch(widget))
            faults += "too small to touch: " + describe(widget);
    }
    return faults;
}

} // namespace widgetchecks
