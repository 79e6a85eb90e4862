#pragma once

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>

/** Remembers the points and variables of all edits that returned true, so that nobody loses one
 *  without being caught. kind is "point" or "var". */
class KeptRecords
{
public:
    /** Remembers a record as the data store holds it now; forgets one that it does not hold. */
    void keep(const QString &kind, const QString &name);
    void forget(const QString &kind, const QString &name);

    int count() const { return m_points.size() + m_variables.size(); }
    /** Names the first record that is not as it was; empty where all are. */
    QString lostFrom(const QJsonArray &points, const QJsonArray &variables) const;

private:
    QHash<QString, QJsonObject> &recordsOf(const QString &kind);

    QHash<QString, QJsonObject> m_points;
    QHash<QString, QJsonObject> m_variables;
};
