#pragma once

#include <zeplet/zeplet.h>

/** The lamp and the sensors, as values of the service hub. GUI thread. */
class CellDevices : public zeplet::ServiceInterface
{
    Q_OBJECT

public:
    explicit CellDevices(QObject *parent);

    bool setLamp(bool on);
    /** What the sensor says, as a sentence. */
    QString temperature() const;
    /** Waits for the hub, and says whether it agreed. */
    bool reset();
};

/** The customer's gripper: a service of its own, reached with plugin commands. GUI thread. */
class Gripper : public zeplet::CustomInterface
{
    Q_OBJECT

public:
    explicit Gripper(QObject *parent);

    /** Wait for the gripper, and say in a sentence what it answered. */
    QString grip(int newtons);
    QString release();

private:
    QString sentence(const QJsonArray &answer) const;
};

/** What the controller can do that InterfaceManager has no operation for. GUI thread. */
class CellController : public zeplet::BaseInterface
{
    Q_OBJECT

public:
    explicit CellController(QObject *parent);

    bool runConveyor(bool on);
    /** Waits for the controller. */
    QString description() const;
};
