#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <memory>

namespace simulator
{

/** Turns SIGTERM and SIGINT into a signal of the event loop. One per process. */
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);

signals:
    void received();

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace simulator
