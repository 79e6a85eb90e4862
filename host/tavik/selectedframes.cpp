#include "tavik/selectedframes_p.h"

#include "link/client.h"
#include "nexo/nexo.h"
#include "ostrel/moduleobject.h"
#include "tavik/storeedit_p.h"

namespace tavik
{

struct SelectedFrames::Frame {
    const char *key; ///< of the data store
    const char *hubKey;
    const char *fallback; ///< where none is selected
    static const Frame all[2];
};

const SelectedFrames::Frame SelectedFrames::Frame::all[]
    = {{"tavik.toolpage.tool", "motion.tool", "tool0"},
       {"tavik.toolpage.wobj", "motion.wobj", "wobj0"}};

namespace
{

ostrel::ModuleObject *blockingNode()
{
    return m(QStringLiteral("tavik.project._blocking_toolwobj_frame_sync"));
}

ostrel::ModuleObject *connectedNode()
{
    return nexo()->mobj()->r(QStringLiteral("connected"));
}

void report(const QString &name, const QString &problem)
{
    tell(QStringLiteral("warning"),
         SelectedFrames::tr("The controller did not confirm that moves are meant in %1: %2. Select "
                            "it again before you move the robot to a point.")
             .arg(rpc::inOneLine(name), problem));
}

} // namespace

SelectedFrames::SelectedFrames(QObject *parent)
    : QObject(parent)
{
    using ostrel::ModuleObject;
    for (const Frame &frame : Frame::all)
        connect(m(QLatin1String(frame.key)), &ModuleObject::changed, this,
                [this, &frame] { send(frame); });
    connect(blockingNode(), &ModuleObject::changed, this, &SelectedFrames::sendAll);
    connect(connectedNode(), &ModuleObject::changed, this, &SelectedFrames::sendAll);
    connect(m(QStringLiteral("brisa.r.id")), &ModuleObject::changed, this,
            [this](const QVariant &, const QVariant &robotBefore) {
                if (!robotBefore.toString().isEmpty())
                    reset();
            });
    sendAll();
}

void SelectedFrames::send(const Frame &frame)
{
    if (blockingNode()->getBool(false) || !connectedNode()->getBool(false))
        return;
    const QString name = m(QLatin1String(frame.key))->getStr(QLatin1String(frame.fallback));
    const auto answered = [name](const QJsonValue &, const QString &problem) {
        if (!problem.isEmpty())
            report(name, problem);
    };
    if (!nexo()->set(this, QLatin1String(frame.hubKey), QJsonValue(name), answered))
        report(name, tr("too many requests wait"));
}

void SelectedFrames::sendAll()
{
    for (const Frame &frame : Frame::all)
        send(frame);
}

/** Global ones, too: under the same name, another robot may have another tool. */
void SelectedFrames::reset()
{
    for (const Frame &frame : Frame::all) {
        ostrel::ModuleObject *const selected = m(QLatin1String(frame.key));
        const QString fallback = QLatin1String(frame.fallback);
        const QString name = selected->getStr(fallback);
        if (name == fallback)
            continue;
        tell(QStringLiteral("warning"),
             tr("%1 is selected in place of %2, which was that of another robot.")
                 .arg(fallback, rpc::inOneLine(name)));
        rpc::deliver(QLatin1String(frame.key), [&] { selected->set(this, fallback); });
    }
}

} // namespace tavik
