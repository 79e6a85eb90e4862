#include "motionkeys.h"

#include "numbers.h"

#include <QJsonArray>

namespace simulator
{

namespace
{
const QString kLastError = QStringLiteral("move.last_error_with_setting");

QJsonArray limitsOf(const Arm &arm)
{
    QJsonArray limits;
    for (const ArmModel::Axis &axis : arm.axes())
        limits += QJsonArray {axis.min, axis.max};
    return limits;
}

QJsonArray skeletonOf(const Arm &arm, const Joints &joints)
{
    QJsonArray skeleton;
    for (const KDL::Vector &point : arm.skeleton(joints))
        skeleton += QJsonArray {rounded(point.x() * 1000), rounded(point.y() * 1000),
                                rounded(point.z() * 1000)};
    return skeleton;
}
} // namespace

MotionKeys::MotionKeys(HubData &hub, const Arm &arm, const Motion &motion)
    : m_hub(hub)
    , m_arm(arm)
    , m_motion(motion)
{
    connect(&motion, &Motion::moved, this, &MotionKeys::showPlace);
    connect(&motion, &Motion::failed, this, &MotionKeys::showError);
    connect(&motion, &Motion::movingChanged, this, [this](bool moving) {
        m_hub.set(QStringLiteral("motion.state"),
                  moving ? QStringLiteral("moving") : QStringLiteral("idle"));
    });
    m_hub.set(QStringLiteral("motion.state"), QStringLiteral("idle"));
    m_hub.set(QStringLiteral("motion.limits"), limitsOf(arm));
    for (const auto &chosen :
         {std::make_pair("motion.tool", "tool0"), std::make_pair("motion.wobj", "wobj0")}) {
        if (!m_hub.value(QLatin1String(chosen.first)).isString())
            m_hub.set(QLatin1String(chosen.first), QLatin1String(chosen.second));
    }
    clearError();
    showPlace();
}

void MotionKeys::showError(const MotionError &error)
{
    m_hub.set(kLastError, error.toJson());
}

void MotionKeys::clearError()
{
    m_hub.set(kLastError, QJsonValue());
}

void MotionKeys::showPlace()
{
    const Joints joints = m_motion.joints();
    QJsonArray angles;
    for (const double angle : joints)
        angles += rounded(angle);
    m_hub.set(QStringLiteral("motion.joints"), angles);
    m_hub.set(QStringLiteral("motion.pose"), Pose::fromFrame(m_arm.flange(joints)).toJson());
    m_hub.set(QStringLiteral("motion.skeleton"), skeletonOf(m_arm, joints));
}

} // namespace simulator
