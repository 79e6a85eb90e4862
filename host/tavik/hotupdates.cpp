#include "tavik/hotupdates_p.h"

#include "nexo/nexo.h"
#include "ostrel/moduleobject.h"
#include "tavik/storeedit_p.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

namespace tavik
{

namespace
{

QJsonObject pointAt(int position)
{
    const ostrel::ModuleObject *const record
        = m(QStringLiteral("tavik.project.point._list"))->childAt(position);
    if (!record)
        return QJsonObject();
    QJsonObject point = record->exportToJson().toObject();
    const bool joint = point.value(QLatin1String("property")) == QLatin1String("joint");
    point.insert(QStringLiteral("type"),
                 joint ? QStringLiteral("jointtarget") : QStringLiteral("robtarget"));
    return point;
}

QJsonArray changedPoints()
{
    ostrel::ModuleObject *const positions
        = m(QStringLiteral("tavik.project.point.hot_update.points"));
    QJsonArray points;
    for (int i = 0; i < positions->childCount(); ++i) {
        const QJsonObject point = pointAt(positions->childAt(i)->getInt(-1));
        if (!point.isEmpty())
            points.append(point);
    }
    return points;
}

QString namesOf(const QJsonArray &points)
{
    QStringList names;
    for (const QJsonValue &point : points)
        names.append(point.toObject().value(QLatin1String("name")).toString());
    return names.join(QLatin1String(", "));
}

/** Empty where the answer says that all is well. */
QString refusal(const QJsonValue &answer, const QString &problem)
{
    if (!problem.isEmpty())
        return problem;
    const int code = answer.toInt(0);
    return code ? HotUpdates::tr("code %1").arg(code) : QString();
}

void report(const QString &names, const QString &reason)
{
    if (!reason.isEmpty())
        tell(QStringLiteral("warning"),
             HotUpdates::tr("The controller did not take over the change to point %1: %2. Programs "
                            "use it as it was until they are started again.")
                 .arg(names, reason));
}

} // namespace

HotUpdates::HotUpdates(QObject *parent)
    : QObject(parent)
{
    ostrel::ModuleObject *const operate
        = m(QStringLiteral("tavik.project.point.hot_update.operate"));
    connect(operate, &ostrel::ModuleObject::changed, this,
            [this](const QVariant &operation) { forward(operation.toString()); });
}

void HotUpdates::forward(const QString &operation)
{
    const bool known = operation == QLatin1String("add") || operation == QLatin1String("edit");
    const bool linked = nexo()->mobj()->r(QStringLiteral("connected"))->getBool(false);
    if (!known || !linked)
        return;
    const QJsonArray points = changedPoints();
    if (points.isEmpty())
        return;
    const QString names = namesOf(points);
    const QJsonObject request {{"operator", operation}, {"variables", points}};
    const bool sent = nexo()->command(this, QStringLiteral("project.variable"), request,
                                      [names](const QJsonValue &answer, const QString &problem) {
                                          report(names, refusal(answer, problem));
                                      });
    if (!sent)
        report(names, tr("too many requests wait"));
}

} // namespace tavik
