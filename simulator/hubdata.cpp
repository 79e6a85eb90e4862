#include "hubdata.h"

#include <QStringList>

namespace simulator
{

namespace
{
constexpr int kMaxSteps = 32;
constexpr int kMaxKeyLength = 512;

/** The parent with the value placed below it along steps[index...], or nothing where a plain value
 *  is in the way. */
std::optional<QJsonObject> placed(QJsonObject parent, const QStringList &steps, int index,
                                  const QJsonValue &value)
{
    const QString &step = steps.at(index);
    if (index + 1 == steps.size()) {
        parent.insert(step, value);
        return parent;
    }
    const QJsonValue child = parent.value(step);
    if (!child.isUndefined() && !child.isObject())
        return std::nullopt;
    const auto changed = placed(child.toObject(), steps, index + 1, value);
    if (!changed)
        return std::nullopt;
    parent.insert(step, *changed);
    return parent;
}
} // namespace

HubData::HubData(const QJsonObject &values, QObject *parent)
    : QObject(parent)
    , m_values(values)
{
}

Refusal HubData::checkKey(const QString &key)
{
    if (key.size() > kMaxKeyLength)
        return QStringLiteral("a key has %1 characters at most").arg(kMaxKeyLength);
    const QStringList steps = key.split(QLatin1Char('.'));
    if (steps.contains(QString()))
        return QStringLiteral("the key '%1' has an empty step").arg(key);
    if (steps.size() > kMaxSteps)
        return QStringLiteral("a key has %1 steps at most").arg(kMaxSteps);
    return std::nullopt;
}

QJsonValue HubData::value(const QString &key) const
{
    QJsonValue node = m_values;
    for (const QString &step : key.split(QLatin1Char('.'))) {
        if (!node.isObject())
            return QJsonValue(QJsonValue::Undefined);
        node = node.toObject().value(step);
    }
    return node;
}

Refusal HubData::set(const QString &key, const QJsonValue &value)
{
    if (auto refusal = checkKey(key))
        return refusal;
    const Guard guard = m_guards.value(key);
    if (const Refusal refusal = guard ? guard(value) : std::nullopt)
        return refusal;
    if (this->value(key) == value)
        return std::nullopt;
    const auto values = placed(m_values, key.split(QLatin1Char('.')), 0, value);
    if (!values)
        return QStringLiteral("a parent of the key '%1' holds a plain value").arg(key);
    m_values = *values;
    emit changed(key, value);
    return std::nullopt;
}

} // namespace simulator
