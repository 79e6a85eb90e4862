#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <condition_variable>
#include <mutex>
#include <thread>

namespace
{

// A panel has more than one thread. While a process has only one, the C and C++ libraries leave
// locks and atomic operations out, and the figures would flatter everyone.
class SecondThread
{
public:
    SecondThread()
        : m_thread([this] {
            std::unique_lock<std::mutex> lock(m_mutex);
            m_wake.wait(lock, [this] { return m_done; });
        })
    {
    }
    ~SecondThread()
    {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_done = true;
        }
        m_wake.notify_one();
        m_thread.join();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_done = false;
    std::thread m_thread;
};

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    SecondThread secondThread;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
