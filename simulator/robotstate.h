#pragma once

#include "refusal.h"

#include <QJsonObject>
#include <QObject>
#include <QString>

namespace simulator
{

/**
 * The simulated robot: motor power, operating mode, program run state, user level and identity,
 * with the rules by which a controller refuses a change. Lives on the simulator's thread.
 */
class RobotState : public QObject
{
    Q_OBJECT

public:
    struct Values {
        bool power = false;
        bool automatic = false;
        bool program = false;
        int level = 1;
        QString id = QStringLiteral("SIM-0001");
        QString version = QStringLiteral("3.1.0");
        QString robot = QStringLiteral("SIX-7");
        int robotTemplate = 1;
    };

    explicit RobotState(const Values &values, QObject *parent = nullptr);

    /** Switching the motors off stops a running program first. Never refused. */
    void setPower(bool on);
    /** Refused while a program runs. */
    Refusal setAutomatic(bool automatic);
    /** Refused while the motors are off, a program runs already or the arm moves. */
    Refusal startProgram();
    /** While the arm moves by itself no program starts. */
    void setMoving(bool moving) { m_moving = moving; }
    /** Stopping an idle robot changes nothing. */
    void stopProgram();

    void setLevel(int level);
    void setId(const QString &id);
    void setVersion(const QString &version);
    void setRobot(const QString &robot);
    void setRobotTemplate(int number);

    const Values &values() const { return m_values; }
    /** The object that travels as `system.state`. */
    QJsonObject toJson() const;
    /** The answer to `system.controller.get_params`. */
    QJsonObject parameters() const;

signals:
    /** A member of toJson() has changed; emitted once per member. */
    void changed();
    /** A member of parameters() that toJson() lacks has changed. */
    void parametersChanged();

private:
    template <typename T>
    void assign(T &member, const T &value);

    Values m_values;
    bool m_moving = false;
};

} // namespace simulator
