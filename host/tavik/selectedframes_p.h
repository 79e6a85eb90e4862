#pragma once

#include <QObject>

namespace tavik
{

/**
 * Tells the controller in which tool and work object moves are meant: "tavik.toolpage.tool" and
 * ".wobj" go to the hub's "motion.tool" and "motion.wobj", when they change and after each connect.
 * While a switch of projects resets them ("tavik.project._blocking_toolwobj_frame_sync"), nothing
 * is sent; what is selected then, goes when the switch is over. A choice made for one robot does
 * not hold for another. GUI thread.
 */
class SelectedFrames : public QObject
{
    Q_OBJECT

public:
    explicit SelectedFrames(QObject *parent = nullptr);

private:
    struct Frame;

    void send(const Frame &frame);
    void sendAll();
    void reset();
};

} // namespace tavik
