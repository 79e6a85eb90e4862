#pragma once

#include "kit/marks.h"
#include "pointlist.h"

#include <QFrame>
#include <QTimer>
#include <optional>

class ArmFeed;
class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;

namespace brisa
{
class ElidedLabel;
}

namespace kit
{
class Page;
}

/** Sends the robot to a point and stops it. Says on its page what became of the move. A move ends
 *  when the page is left: where nobody sees its key to stop, no robot moves. */
class MoveBar : public QFrame
{
    Q_OBJECT

public:
    MoveBar(ArmFeed *feed, kit::Page *page);

    void setTarget(const std::optional<Point> &point);
    void refresh();
    /** In two rows, for where there is little room beside the key to stop. */
    void setNarrow(bool narrow);
    /** The page is left. */
    void leave();

private:
    enum Phase { Resting, Sent, Moving };

    void build();
    QWidget *makeTexts();
    void sayTexts();
    QString refusal() const;
    void askToMove();
    void selectFrames(const Element &target);
    void move();
    void stop();
    void follow();
    void refreshStop();
    void checkStarted();
    void tellEnd();
    void tellError();
    void tell(kit::Tone tone, const char *sentence, const QString &detail = QString());

    ArmFeed *m_feed;
    kit::Page *m_page;
    std::optional<Point> m_point;
    Phase m_phase = Resting;
    QString m_name; ///< of the point that the robot was sent to
    bool m_stopped = false;
    QTimer m_patience;
    QTimer m_settle;
    QGridLayout *m_fields;
    brisa::ElidedLabel *m_title;
    QLabel *m_reason;
    QWidget *m_texts;
    QComboBox *m_speed;
    QComboBox *m_way;
    QPushButton *m_move;
    QPushButton *m_stop;
};
