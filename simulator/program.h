#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <functional>

namespace simulator
{

/** What the robot's program does: control lines that come in turn, over and over again, while it
 *  runs. Lives on the simulator's thread. */
class Program : public QObject
{
    Q_OBJECT

public:
    struct Values {
        int every = 0; ///< milliseconds from line to line
        QStringList lines; ///< empty: it runs and does nothing
    };

    explicit Program(const Values &values, QObject *parent = nullptr);

    /** While this says so, the next line does not come. */
    void setWait(const std::function<bool()> &mustWait) { m_mustWait = mustWait; }
    /** A program that starts begins with its first line, at once. */
    void setRunning(bool running);

signals:
    void due(const QString &line);

private:
    void next();

    Values m_values;
    std::function<bool()> m_mustWait;
    QTimer m_timer;
    int m_index = 0;
};

} // namespace simulator
