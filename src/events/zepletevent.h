#pragma once

#include <QDateTime>
#include <QHash>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <zeplet/events/zepleteventtype.h>
#include <zeplet/export.h>

namespace zeplet
{

/// One notification on the event bus. A copy is the same event: it keeps time, number and id.
///
/// Events may be made on any thread; one value is not synchronised. The move operations leave an
/// event without properties behind.
class ZEPLET_EXPORT ZepletEvent
{
public:
    /// An event of type None without source and data.
    ZepletEvent();
    /// An event with a new number and id, and the time of now.
    ZepletEvent(ZepletEventType type, const QString &source, const QVariant &data);

    /// The next sequence number: 1 for the first event of the process, whichever thread makes it.
    static quint64 generateSequenceId();

    /// The names of the extra values, in no particular order.
    QStringList propertyNames() const;
    /// The extra value of that name; `defaultValue` only where the name is not present.
    QVariant property(const QString &name, const QVariant &defaultValue = QVariant()) const;
    /// Whether the extra value is present, be it an invalid one.
    bool hasProperty(const QString &name) const;
    /// Adds the extra value or overwrites it.
    void setProperty(const QString &name, const QVariant &value);
    /// Removes the extra value; a name that is not present is ignored.
    void removeProperty(const QString &name);

    /// One line with type, source, number, id and time, for logs.
    QString toString() const;

    /// What happened.
    ZepletEventType type = None;
    /// Who published it: free text.
    QString source;
    /// The main payload.
    QVariant data;
    /// When it was made, in UTC.
    QDateTime timestamp;
    /// Unique in the process, increasing in the order of creation.
    quint64 seq = 0;
    /// A random UUID (RFC 4122, version 4): 36 characters without braces.
    QString id;
    /// The extra values by name.
    QHash<QString, QVariant> properties;
};

} // namespace zeplet

Q_DECLARE_METATYPE(zeplet::ZepletEvent)
