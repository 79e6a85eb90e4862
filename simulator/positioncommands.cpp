#include "positioncommands.h"

#include "numbers.h"

#include <QJsonArray>

namespace simulator
{

namespace
{
constexpr int kInnerAxes = 7;
constexpr int kExternalAxes = 6;

QJsonArray padded(const Joints &joints, int count)
{
    QJsonArray array;
    for (int axis = 0; axis < count; ++axis)
        array += rounded(joints.value(axis));
    return array;
}

QJsonObject quaternionOf(const KDL::Rotation &rotation)
{
    double x = 0;
    double y = 0;
    double z = 0;
    double w = 0;
    rotation.GetQuaternion(x, y, z, w);
    const double sign = w < 0 ? -1 : 1; // both signs mean the same orientation
    return {{QStringLiteral("q1"), sign * w},
            {QStringLiteral("q2"), sign * x},
            {QStringLiteral("q3"), sign * y},
            {QStringLiteral("q4"), sign * z}};
}

QJsonObject poseOf(const KDL::Frame &frame, double elbow)
{
    const QJsonObject pose = Pose::fromFrame(frame).toJson();
    const auto part = [&pose](const QStringList &members) {
        QJsonObject object;
        for (const QString &member : members)
            object.insert(member, pose.value(member));
        return object;
    };
    const QJsonObject ori {{QStringLiteral("euler"),
                            part({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")})},
                           {QStringLiteral("quaternion"), quaternionOf(frame.M)}};
    const QJsonObject place {
        {QStringLiteral("pos"),
         part({QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z")})},
        {QStringLiteral("ori"), ori}};
    return {{QStringLiteral("frame"), place}, {QStringLiteral("elb"), rounded(elbow)}};
}
} // namespace

PositionCommands::PositionCommands(CommandRegistry &registry, const Arm &arm, const Motion &motion,
                                   const Frames &frames)
    : m_arm(arm)
    , m_motion(motion)
    , m_frames(frames)
{
    registry.add(QStringLiteral("project.rl_program.get_rob_pos"),
                 [this](const QJsonValue &arguments, Session &) { return position(arguments); });
}

Reply PositionCommands::position(const QJsonValue &arguments) const
{
    const QJsonValue toolName = arguments[QStringLiteral("tool")];
    const QJsonValue wobjName = arguments[QStringLiteral("wobj")];
    if (!toolName.isString() || !wobjName.isString())
        return Reply::bad(QStringLiteral("the arguments 'tool' and 'wobj' have to be texts"));
    const Frames::Frame *tool = m_frames.find(Frames::Tool, toolName.toString());
    if (tool == nullptr)
        return Reply::refused(QStringLiteral("there is no tool '%1'").arg(toolName.toString()));
    const Frames::Frame *wobj = m_frames.find(Frames::WorkObject, wobjName.toString());
    if (wobj == nullptr)
        return Reply::refused(
            QStringLiteral("there is no work object '%1'").arg(wobjName.toString()));

    const Joints joints = m_motion.joints();
    const KDL::Frame pose
        = wobj->pose.toFrame().Inverse() * m_arm.flange(joints) * tool->pose.toFrame();
    const QJsonObject joint {{QStringLiteral("inner_pos"), padded(joints, kInnerAxes)},
                             {QStringLiteral("extern_pos"), padded({}, kExternalAxes)}};
    const QJsonObject cartesian {{QStringLiteral("pose"), poseOf(pose, m_arm.elbowAngle(joints))},
                                 {QStringLiteral("conf"), m_arm.configuration(joints).toJson()}};
    return Reply::done(
        QJsonObject {{QStringLiteral("joint"), joint}, {QStringLiteral("cartesian"), cartesian}});
}

} // namespace simulator
