#pragma once

#include <QJsonObject>
#include <QObject>
#include <QTimer>

namespace simulator
{

/** Collects what changes by name, so that fast changes are reported at most 20 times a second: the
 *  first one at once, the last one always. */
class ChangeCollector : public QObject
{
    Q_OBJECT

public:
    static constexpr int kPauseMs = 50;

    explicit ChangeCollector(QObject *parent = nullptr);

    void add(const QString &name, const QJsonValue &value);

signals:
    /** What has changed since the last time: names with their latest values. */
    void due(const QJsonObject &changes);

private:
    void report();

    QJsonObject m_changes;
    QTimer m_pause;
};

} // namespace simulator
