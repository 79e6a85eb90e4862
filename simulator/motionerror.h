#pragma once

#include <QJsonObject>
#include <QString>
#include <optional>

namespace simulator
{

/** Why the arm does not move, or a path is not allowed; docs/simulator.md lists the codes. */
struct MotionError {
    enum Code {
        OutOfReach = -50001,
        JointLimit = -50002,
        NearSingularity = -50003, ///< a remark: the path is allowed
        Singularity = -50004,
        OtherConfiguration = -50005,
        NoPosition = -50006,
        BadRequest = -50007,
        UnknownFrame = -50008,
        MotorsOff = -50011,
        ProgramRuns = -50012,
        MovesAlready = -50013,
        NotEnabled = -50014,
        Interrupted = -50015,
    };

    Code code;
    QString text;

    QJsonObject toJson() const
    {
        return {{QStringLiteral("error"), code}, {QStringLiteral("message"), text}};
    }
};

/** Nothing where all is well. */
using MotionProblem = std::optional<MotionError>;

} // namespace simulator
