#include "keptrecords.h"

#include "projectfiles.h"

namespace
{

QString firstLost(const QHash<QString, QJsonObject> &kept, const QJsonArray &records)
{
    for (auto record = kept.begin(); record != kept.end(); ++record) {
        if (projectfiles::recordOf(records, record.key()) != record.value())
            return record.key();
    }
    return {};
}

} // namespace

void KeptRecords::keep(const QString &kind, const QString &name)
{
    const QJsonObject record = projectfiles::recordOf(projectfiles::stored(kind), name);
    if (record.isEmpty())
        forget(kind, name);
    else
        recordsOf(kind).insert(name, record);
}

void KeptRecords::forget(const QString &kind, const QString &name)
{
    recordsOf(kind).remove(name);
}

QString KeptRecords::lostFrom(const QJsonArray &points, const QJsonArray &variables) const
{
    const QString point = firstLost(m_points, points);
    return point.isEmpty() ? firstLost(m_variables, variables) : point;
}

QHash<QString, QJsonObject> &KeptRecords::recordsOf(const QString &kind)
{
    return kind == QLatin1String("point") ? m_points : m_variables;
}
