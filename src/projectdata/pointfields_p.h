#pragma once

#include <QString>

/** The fields of a point's element, as paths below it. */
namespace zeplet
{

/** Millimetres and degrees, in the order of a pose of six values. */
constexpr const char *poseFields[]
    = {"pose.frame.pos.x",       "pose.frame.pos.y",       "pose.frame.pos.z",
       "pose.frame.ori.euler.a", "pose.frame.ori.euler.b", "pose.frame.ori.euler.c"};

constexpr int robotJoints = 7;
constexpr int externalJoints = 6;

inline QString jointField(int joint)
{
    return QStringLiteral("inner_pos.#%1").arg(joint);
}

} // namespace zeplet
