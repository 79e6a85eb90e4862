// Says on the way out what of the panel is still there, and leaves a subscription and a watched hub
// key behind, as a careless plugin does.
#include "fixture.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QThread>
#include <cstdio>
#include <cstdlib>
#include <zeplet/events/zepleteventsystem.h>
#include <zeplet/interface/interfacemanager.h>

namespace
{

bool isIoThreadThere()
{
    const QStringList tasks = QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs);
    for (const QString &task : tasks) {
        QFile name(QStringLiteral("/proc/self/task/%1/comm").arg(task));
        if (name.open(QIODevice::ReadOnly) && name.readAll() == "host-io\n")
            return true;
    }
    return false;
}

void say(const char *moment)
{
    std::printf("%s: bus %s, I/O thread %s\n", moment,
                zeplet::ZepletEventSystem::existingInstance() ? "there" : "gone",
                isIoThreadThere() ? "there" : "gone");
    std::fflush(stdout);
}

// A joined thread leaves the process list a moment later.
void sayAtExit()
{
    const QDeadlineTimer limit(10000);
    while (isIoThreadThere() && !limit.hasExpired())
        QThread::yieldCurrentThread();
    say("process ends");
}

class Ending : public zeplet::PluginBase
{
public:
    using PluginBase::PluginBase;
    ~Ending() override { say("plugin ends"); }

    void init() override
    {
        const QString name = QStringLiteral("ending");
        zeplet::zepletEvent()->subscribeFiltered(
            zeplet::NetworkDisconnected, {}, [](const zeplet::ZepletEvent &) {}, name);
        zeplet::zepletInterface()->connectNexoData(name, QStringLiteral("demo.counter"), {});
        connect(zeplet::zepletEvent(), &QObject::destroyed, [] { say("bus ends"); });
        std::atexit(sayAtExit);
    }
    void detach() override { say("detach"); }
};

const Registration registration("ending", [](QObject *parent) { return new Ending(parent); });

} // namespace
