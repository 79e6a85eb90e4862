#include "checksteps.h"

#include <ostrel/moduleobject.h>
#include <zeplet/zeplet.h>

using namespace zeplet;

namespace
{

InterfaceManager *robot()
{
    return zepletInterface();
}

/** What the keys of the panel do. */
void press(const char *key)
{
    m(QStringLiteral("brisa.r.operator"))->set(nullptr, QString::fromLatin1(key));
}

bool waitsFor(const QString &what)
{
    return robot()->getNodeData(QStringLiteral("brisa.r.zeplet.waiting")).toString() == what;
}

void filter(bool on)
{
    robot()->startRunningFilter(on);
    robot()->stopRunningFilter(on);
}

bool programHasWorked()
{
    const QStringList parts = robot()->getRegisterHash().value(QStringLiteral("R_PARTS"));
    return robot()->getNexoData(QStringLiteral("monitor.values"), QStringLiteral("part_count"))
        == QStringLiteral("41")
        && parts.value(0) == QStringLiteral("41");
}

CheckSteps filteredSteps(CheckSession *session)
{
    const QString run = QStringLiteral("run");
    const QString stop = QStringLiteral("stop");
    return {
        eventStep(session, QStringLiteral("with a filter, a start waits: RCBeforeRunStart"),
                  [] {
                      filter(true);
                      press("start");
                  },
                  {RCBeforeRunStart}),
        {QStringLiteral("a start that waits is cancelled"), [] { press("cancel"); },
         [] { return waitsFor(QString()); }},
        eventStep(session, QStringLiteral("a second start waits: RCBeforeRunStart"),
                  [] { press("start"); }, {RCBeforeRunStart}),
        {QStringLiteral("the panel shows that a start waits"), {}, [=] { return waitsFor(run); }},
        eventStep(session, QStringLiteral("the plugin lets it start: RCRunStart"),
                  [] { robot()->startRunning(); }, {RCRunStart}),
        eventStep(session, QStringLiteral("with a filter, a stop waits: RCBeforeRunStop"),
                  [] { press("stop"); }, {RCBeforeRunStop}),
        {QStringLiteral("the panel shows that a stop waits"), {}, [=] { return waitsFor(stop); }},
        eventStep(session, QStringLiteral("the plugin lets it stop: RCRunStop"),
                  [] { robot()->stopRunning(); }, {RCRunStop}),
    };
}

} // namespace

CheckSteps runSteps(CheckSession *session)
{
    return filteredSteps(session)
        + CheckSteps {
            eventStep(session, QStringLiteral("without a filter, a start: RCRunStart"),
                      [] {
                          filter(false);
                          press("start");
                      },
                      {RCRunStart}),
            {QStringLiteral("the program changes a register and a persistent variable"),
             {},
             programHasWorked},
            eventStep(session, QStringLiteral("without a filter, a stop: RCRunStop"),
                      [] { press("stop"); }, {RCRunStop}),
        };
}
