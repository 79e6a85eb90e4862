#pragma once

#include <QHash>
#include <QJsonObject>
#include <QString>

namespace simulator
{

/** Counts the requests by command and keeps the last arguments of each. */
class RequestLog
{
public:
    void add(const QString &command, const QJsonValue &arguments);
    void clear() { m_entries.clear(); }

    int count(const QString &command) const { return m_entries.value(command).count; }
    /** The arguments of the last request; undefined where there were none. */
    QJsonValue last(const QString &command) const { return m_entries.value(command).arguments; }
    QJsonObject counts() const;

private:
    struct Entry {
        int count = 0;
        QJsonValue arguments = QJsonValue(QJsonValue::Undefined);
    };
    QHash<QString, Entry> m_entries;
};

} // namespace simulator
