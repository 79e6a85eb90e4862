#include "link/iothread.h"

namespace rpc
{

IoThread::IoThread()
{
    m_thread.setObjectName(QStringLiteral("host-io"));
}

IoThread::~IoThread()
{
    shutdown();
}

void IoThread::adopt(QObject *object)
{
    if (!m_thread.isRunning())
        m_thread.start();
    object->moveToThread(&m_thread);
}

void IoThread::shutdown()
{
    m_thread.quit();
    m_thread.wait();
}

bool IoThread::isRunning() const
{
    return m_thread.isRunning();
}

} // namespace rpc
