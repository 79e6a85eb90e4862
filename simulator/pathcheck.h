#pragma once

#include "commandregistry.h"
#include "frames.h"
#include "motion.h"

#include <QJsonArray>
#include <functional>

namespace simulator
{

/**
 * The hub's command `move.path.check`: whether the arm can go straight from the first element of
 * one point of the open project to the one of another, each in its own tool and work object.
 */
class PathCheck
{
public:
    /** The path of the open project's file of points; "" where the controller has no files. */
    using PointsFile = std::function<QString()>;

    /** What the command works on; all of it outlives the command. */
    struct Context {
        const Arm &arm;
        const Motion &motion;
        const Frames &frames;
        PointsFile pointsFile;
    };

    PathCheck(CommandRegistry &registry, const Context &context);

    /** Why the straight path is not allowed, or a remark about it; nothing where all is well. */
    MotionProblem check(const QString &from, const QString &to) const;

private:
    struct Position {
        MotionTarget target;
        Joints joints; ///< of a joint target; empty otherwise
    };
    using Found = std::variant<Position, MotionError>;

    /** The records of the open project's points; nothing where the file can't be read. */
    std::optional<QJsonArray> points() const;
    Found find(const QJsonArray &points, const QString &name) const;
    Found read(const QString &name, const QJsonValue &element) const;
    std::variant<Joints, MotionError> jointsOf(const Position &position) const;

    Context m_context;
};

} // namespace simulator
