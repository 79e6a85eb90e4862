#pragma once

#include <QThread>

namespace rpc
{

/**
 * The one thread on which the sockets of all clients live. It starts with the first client that
 * opens, and shutdown() joins it. Made, used and destroyed on one thread.
 */
class IoThread
{
public:
    IoThread();
    ~IoThread();

    /** Hands a parentless object over to the thread. The object is destroyed by deleteLater(). */
    void adopt(QObject *object);

    /** Ends and joins the thread, after what clients have closed is gone. Does nothing where it
     *  never started; a later adopt() starts it again. Blocks for the frame in work at most. */
    void shutdown();

    bool isRunning() const;

private:
    QThread m_thread;
};

} // namespace rpc
