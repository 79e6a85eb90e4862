#pragma once

#include <QScrollArea>

namespace brisa
{

/** A scroll area without frame and ground of its own, around a content that fills it. */
class TouchScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    /** Flick: the content follows a finger; Bars: the scroll bars alone move it, and a press on the
     *  content is never delayed. */
    enum class By { Flick, Bars };

    TouchScrollArea(By by, QWidget *parent);
    ~TouchScrollArea() override;

    /** Takes the place of the widget that is there. */
    void setContent(QWidget *content);

protected:
    void showEvent(QShowEvent *event) override;

private:
    By m_by;
};

} // namespace brisa
