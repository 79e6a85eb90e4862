#include "armmodel.h"

#include <QtMath>
#include <cmath>

namespace simulator
{

namespace
{
const KDL::Vector kX(1, 0, 0);
const KDL::Vector kY(0, 1, 0);
const KDL::Vector kZ(0, 0, 1);
} // namespace

ArmModel ArmModel::six()
{
    const KDL::Vector elbowToWrist4(0.18, 0, 0.12);
    const KDL::Vector wrist4ToWrist5(0.46, 0, 0);
    ArmModel model;
    model.axes = {{kZ, KDL::Vector(0, 0, 0.2), -170, 170, 200},
                  {kY, KDL::Vector(0.15, 0, 0.25), -100, 130, 180},
                  {kY, KDL::Vector(0, 0, 0.58), -175, 75, 200},
                  {kX, elbowToWrist4, -190, 190, 300},
                  {kY, wrist4ToWrist5, -125, 125, 300},
                  {kX, KDL::Vector(), -360, 360, 420}};
    // The flange's Z leaves the arm.
    model.flange = KDL::Frame(KDL::Rotation::RotY(M_PI_2), KDL::Vector(0.1, 0, 0));
    model.elbow = 2;
    const KDL::Vector forearm = elbowToWrist4 + wrist4ToWrist5;
    model.stretched = -qRadiansToDegrees(std::atan2(forearm.x(), forearm.z()));
    model.wrist = 4;
    return model;
}

ArmModel ArmModel::seven()
{
    ArmModel model;
    model.axes = {{kZ, KDL::Vector(0, 0, 0.15), -170, 170, 140},
                  {kY, KDL::Vector(0, 0, 0.20), -120, 120, 140},
                  {kZ, KDL::Vector(0, 0, 0.21), -170, 170, 150},
                  {kY, KDL::Vector(0, 0, 0.21), -125, 125, 150},
                  {kZ, KDL::Vector(0, 0, 0.20), -170, 170, 200},
                  {kY, KDL::Vector(0, 0, 0.20), -120, 120, 200},
                  {kZ, KDL::Vector(), -175, 175, 220}};
    model.flange = KDL::Frame(KDL::Vector(0, 0, 0.13));
    model.elbow = 3;
    model.stretched = 0;
    model.wrist = 5;
    return model;
}

} // namespace simulator
