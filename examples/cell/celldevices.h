#pragma once

#include <functional>
#include <zeplet/zeplet.h>

/** Says something in the language of the moment. */
using Sentence = std::function<QString()>;

/** The lamp and the sensors, as values of the service hub. GUI thread. */
class CellDevices : public zeplet::ServiceInterface
{
    Q_OBJECT

public:
    explicit CellDevices(QObject *parent);

    bool setLamp(bool on);
    /** What the sensor says. */
    Sentence temperature() const;
    /** Waits for the hub, and says whether it agreed. */
    bool reset();
};

/** The customer's gripper: a service of its own, reached with plugin commands. GUI thread. */
class Gripper : public zeplet::CustomInterface
{
    Q_OBJECT

public:
    explicit Gripper(QObject *parent);

    /** Wait for the gripper, and say what it answered. */
    Sentence grip(int newtons);
    Sentence release();

private:
    Sentence sentence(const QJsonArray &answer) const;
};

/** What the controller can do that InterfaceManager has no operation for. GUI thread. */
class CellController : public zeplet::BaseInterface
{
    Q_OBJECT

public:
    explicit CellController(QObject *parent);

    bool runConveyor(bool on);
    /** Waits for the controller. */
    Sentence description() const;
};
