#pragma once

#include "frames.h"
#include "hubdata.h"
#include "motion.h"

namespace simulator
{

/**
 * What the hub shows of the arm: the keys `motion.*`, and the last error of a move. Clients choose
 * the tool and the work object of their moves with the keys `motion.tool` and `motion.wobj`. All
 * that it is made from outlives it.
 */
class MotionKeys : public QObject
{
    Q_OBJECT

public:
    MotionKeys(HubData &hub, const Arm &arm, const Motion &motion);

    void showError(const MotionError &error);
    void clearError();

private:
    void showPlace();

    HubData &m_hub;
    const Arm &m_arm;
    const Motion &m_motion;
};

} // namespace simulator
