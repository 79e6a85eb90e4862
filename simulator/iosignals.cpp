#include "iosignals.h"

#include <algorithm>
#include <cmath>

namespace simulator
{

namespace
{
constexpr double kMaxGroup = 4294967295.0;

QJsonArray systemToJson(const QVector<IoSignals::SystemIo> &list)
{
    QJsonArray array;
    for (const IoSignals::SystemIo &entry : list)
        array += QJsonObject {{QStringLiteral("signal"), entry.signal},
                              {QStringLiteral("function"), entry.function}};
    return array;
}

bool names(const QVector<IoSignals::SystemIo> &list, const QString &signal)
{
    return std::any_of(list.cbegin(), list.cend(),
                       [&](const IoSignals::SystemIo &entry) { return entry.signal == signal; });
}

bool isInput(IoSignals::Type type)
{
    return type == IoSignals::DigitalIn || type == IoSignals::GroupIn
        || type == IoSignals::AnalogueIn;
}
} // namespace

IoSignals::IoSignals(const Values &values, QObject *parent)
    : QObject(parent)
    , m_values(values)
{
    for (int i = 0; i < values.list.size(); ++i)
        m_indexes.insert(values.list.at(i).name, i);
}

QStringList IoSignals::typeNames()
{
    return {QStringLiteral("DI"), QStringLiteral("DO"), QStringLiteral("GI"),
            QStringLiteral("GO"), QStringLiteral("AI"), QStringLiteral("AO")};
}

QJsonValue IoSignals::fitted(Type type, const QJsonValue &value)
{
    const QJsonValue none(QJsonValue::Undefined);
    if (type == DigitalIn || type == DigitalOut)
        return value.isBool() ? value : none;
    if (value.isBool())
        return value.toBool() ? 1 : 0;
    const double number = value.toDouble();
    if (!value.isDouble() || !std::isfinite(number))
        return none;
    const bool isGroup = type == GroupIn || type == GroupOut;
    if (isGroup && (number < 0 || number > kMaxGroup || std::trunc(number) != number))
        return none;
    return value;
}

Refusal IoSignals::checkValue(const QString &name, const QJsonValue &value) const
{
    const int index = m_indexes.value(name, -1);
    if (index < 0)
        return QStringLiteral("there is no signal '%1'").arg(name);
    const Type type = m_values.list.at(index).type;
    if (fitted(type, value).isUndefined())
        return QStringLiteral("the value does not fit the signal '%1' (%2)")
            .arg(name, typeNames().at(type - 1));
    return std::nullopt;
}

bool IoSignals::isSystem(const QString &name) const
{
    return names(m_values.systemInputs, name) || names(m_values.systemOutputs, name);
}

Refusal IoSignals::request(const QJsonObject &values)
{
    for (auto entry = values.begin(); entry != values.end(); ++entry) {
        if (auto refusal = checkValue(entry.key(), entry.value()))
            return refusal;
        if (isSystem(entry.key()))
            return QStringLiteral("'%1' belongs to the system").arg(entry.key());
        if (isInput(m_values.list.at(m_indexes.value(entry.key())).type) && !m_values.simulated)
            return QStringLiteral("the input '%1' is not simulated").arg(entry.key());
    }
    for (auto entry = values.begin(); entry != values.end(); ++entry)
        set(entry.key(), entry.value());
    return std::nullopt;
}

Refusal IoSignals::set(const QString &name, const QJsonValue &value)
{
    if (auto refusal = checkValue(name, value))
        return refusal;
    Signal &signal = m_values.list[m_indexes.value(name)];
    const QJsonValue kept = fitted(signal.type, value);
    if (signal.value == kept)
        return std::nullopt;
    signal.value = kept;
    emit valueChanged(name, kept);
    return std::nullopt;
}

void IoSignals::setSimulated(bool on)
{
    if (m_values.simulated == on)
        return;
    m_values.simulated = on;
    emit stateChanged();
}

QJsonValue IoSignals::value(const QString &name) const
{
    const int index = m_indexes.value(name, -1);
    return index < 0 ? QJsonValue(QJsonValue::Undefined) : m_values.list.at(index).value;
}

QJsonObject IoSignals::valuesToJson() const
{
    QJsonObject values;
    for (const Signal &signal : m_values.list)
        values.insert(signal.name, signal.value);
    return values;
}

QJsonObject IoSignals::toJson() const
{
    QJsonArray list;
    for (const Signal &signal : m_values.list)
        list += QJsonObject {{QStringLiteral("name"), signal.name},
                             {QStringLiteral("signal_type"), signal.type},
                             {QStringLiteral("label"), signal.label}};
    return {{QStringLiteral("signals"), list},
            {QStringLiteral("input_system_io"), systemToJson(m_values.systemInputs)},
            {QStringLiteral("output_system_io"), systemToJson(m_values.systemOutputs)},
            {QStringLiteral("input_simu_mode"), m_values.simulated}};
}

} // namespace simulator
