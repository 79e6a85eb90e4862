#include "frames.h"

#include <algorithm>

namespace simulator
{

namespace
{
const QString kTool0 = QStringLiteral("tool0");
const QString kWobj0 = QStringLiteral("wobj0");

template <typename List>
auto position(List &list, const QString &name)
{
    return std::find_if(list.begin(), list.end(),
                        [&name](const Frames::Frame &frame) { return frame.name == name; });
}
} // namespace

Frames::Frames(const Values &values, QObject *parent)
    : QObject(parent)
    , m_values(values)
{
    m_values.lists[Tool][System] = {{kTool0, {}}};
    m_values.lists[WorkObject][System] = {{kWobj0, {}}};
}

QJsonArray Frames::toJson(Kind kind, List list) const
{
    QJsonArray array;
    for (const Frame &frame : this->list(kind, list))
        array += QJsonObject {{QStringLiteral("name"), frame.name},
                              {QStringLiteral("pose"), frame.pose.toJson()}};
    return array;
}

const Frames::Frame *Frames::find(Kind kind, const QString &name) const
{
    for (const auto &list : m_values.lists[kind]) {
        const auto found = position(list, name);
        if (found != list.end())
            return &*found;
    }
    return nullptr;
}

Refusal Frames::checkName(const QString &name)
{
    if (name.isEmpty())
        return QStringLiteral("a tool or work object needs a name");
    if (name == kTool0 || name == kWobj0)
        return QStringLiteral("'%1' belongs to the system").arg(name);
    return std::nullopt;
}

Refusal Frames::set(Kind kind, List list, const Frame &frame)
{
    if (auto refusal = checkName(frame.name))
        return refusal;
    if (list == System)
        return QStringLiteral("the system's tools and work objects stay as they are");
    auto &frames = m_values.lists[kind][list];
    const auto found = position(frames, frame.name);
    if (found == frames.end())
        frames += frame;
    else
        found->pose = frame.pose;
    emit changed();
    return std::nullopt;
}

Refusal Frames::remove(Kind kind, List list, const QString &name)
{
    auto &frames = m_values.lists[kind][list];
    const auto found = position(frames, name);
    if (list == System || found == frames.end())
        return QStringLiteral("there is no '%1' to remove").arg(name);
    frames.erase(found);
    emit changed();
    return std::nullopt;
}

} // namespace simulator
