#pragma once

#include "iosignals.h"
#include "robotstate.h"

#include <QObject>

namespace simulator
{

/** Ties the system's signals to the robot: an output shows a state, the rising edge of an input
 *  asks for a change. A change that the robot refuses is passed over, as by a button on a wall. */
class SystemIo : public QObject
{
    Q_OBJECT

public:
    /** Both outlive this object. */
    SystemIo(IoSignals &io, RobotState &robot, QObject *parent = nullptr);

    static QStringList inputFunctions();
    static QStringList outputFunctions();

private:
    void show();
    void ask(const QString &signal, const QJsonValue &value);

    IoSignals &m_io;
    RobotState &m_robot;
};

} // namespace simulator
