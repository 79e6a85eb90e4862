#include "armfeed.h"

#include <QJsonArray>
#include <QJsonObject>
#include <nexo/nexo.h>
#include <ostrel/moduleobject.h>
#include <zeplet/zeplet.h>

using zeplet::zepletInterface;

namespace
{

const QString ErrorKey = QStringLiteral("move.last_error_with_setting");

QVector<double> numbers(const QJsonArray &array)
{
    QVector<double> numbers;
    for (const QJsonValue &number : array)
        numbers.append(number.toDouble());
    return numbers;
}

QVector<QVector3D> places(const QJsonArray &array)
{
    QVector<QVector3D> places;
    for (const QJsonValue &place : array)
        places.append(QVector3D(float(place[0].toDouble()), float(place[1].toDouble()),
                                float(place[2].toDouble())));
    return places;
}

QVector<QPair<double, double>> ranges(const QJsonArray &array)
{
    QVector<QPair<double, double>> ranges;
    for (const QJsonValue &range : array)
        ranges.append({range[0].toDouble(), range[1].toDouble()});
    return ranges;
}

QVector<double> pose(const QJsonObject &object)
{
    QVector<double> pose;
    for (const char *member : {"x", "y", "z", "a", "b", "c"})
        if (!object.isEmpty())
            pose.append(object[QLatin1String(member)].toDouble());
    return pose;
}

QJsonValue hub(const char *key)
{
    return zepletInterface()->getNexoData(QLatin1String(key));
}

} // namespace

ArmFeed::ArmFeed(const QString &pluginName, QObject *parent)
    : QObject(parent)
    , m_pluginName(pluginName)
{
    m_read.setSingleShot(true);
    connect(&m_read, &QTimer::timeout, this, &ArmFeed::read);
    for (const char *key :
         {"motion.skeleton", "motion.joints", "motion.pose", "motion.state", "motion.limits"})
        follow(QLatin1String(key), &ArmFeed::readSoon);
    follow(ErrorKey, &ArmFeed::moveErrorChanged);
    connect(nexo()->mobj()->r(QStringLiteral("connected")), &ostrel::ModuleObject::changed, this,
            &ArmFeed::readSoon);
}

ArmFeed::~ArmFeed()
{
    for (const Watch &watch : qAsConst(m_watches))
        zepletInterface()->disconnectNexoData(m_pluginName, watch.key, watch.subscription);
}

QString ArmFeed::moveError() const
{
    const QJsonValue error = zepletInterface()->getNexoData(ErrorKey);
    if (error.isNull() || error.isUndefined() || error == QJsonValue(QJsonObject()))
        return QString();
    QString message = error[QLatin1String("message")].toString(error.toString()).trimmed();
    while (message.endsWith('.'))
        message.chop(1);
    return message.isEmpty()
        ? tr("error %1").arg(error[QLatin1String("error")].toVariant().toString())
        : message;
}

void ArmFeed::read()
{
    m_state.live = zepletInterface()->getRobotConnected()
        && nexo()->mobj()->getBool(QStringLiteral("connected"), false);
    m_state.moving = m_state.live && hub("motion.state").toString() == QLatin1String("moving");
    m_state.skeleton = places(hub("motion.skeleton").toArray());
    m_state.pose = pose(hub("motion.pose").toObject());
    m_state.joints = numbers(hub("motion.joints").toArray());
    m_state.limits = ranges(hub("motion.limits").toArray());
    Q_EMIT changed();
}

// Connecting says only whether it worked; the new subscription is the one that the bus did not have
// before, and an empty id would end those of all others.
void ArmFeed::follow(const QString &key, void (ArmFeed::*told)())
{
    const QStringList before = zeplet::zepletEvent()->totalSubscriptionIds(m_pluginName);
    if (!zepletInterface()->connectNexoData(m_pluginName, key,
                                            [this, told](const QVariant &) { (this->*told)(); }))
        return;
    const QStringList after = zeplet::zepletEvent()->totalSubscriptionIds(m_pluginName);
    for (const QString &id : after)
        if (!before.contains(id))
            m_watches.append({key, id});
}

// The keys of one instant come one after the other.
void ArmFeed::readSoon()
{
    if (!m_read.isActive())
        m_read.start(0);
}
