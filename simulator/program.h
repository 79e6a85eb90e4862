#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>

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

    /** A program that starts begins with its first line, at once. */
    void setRunning(bool running);

signals:
    void due(const QString &line);

private:
    void next();

    Values m_values;
    QTimer m_timer;
    int m_index = 0;
};

} // namespace simulator
