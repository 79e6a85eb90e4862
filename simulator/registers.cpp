#include "registers.h"

#include <QJsonObject>
#include <algorithm>

namespace simulator
{

Registers::Registers(const Values &values, QObject *parent)
    : QObject(parent)
    , m_values(values)
{
}

Refusal Registers::set(const QString &name, int index, const QString &text)
{
    const auto found = std::find_if(m_values.begin(), m_values.end(),
                                    [&](const Register &entry) { return entry.name == name; });
    if (found == m_values.end())
        return QStringLiteral("there is no register '%1'").arg(name);
    if (index < 0 || index >= found->value.size())
        return QStringLiteral("the register '%1' has no index %2")
            .arg(name, QString::number(index));
    if (found->value.at(index) == text)
        return std::nullopt;
    found->value[index] = text;
    emit changed();
    return std::nullopt;
}

QJsonArray Registers::toJson() const
{
    QJsonArray list;
    for (const Register &entry : m_values)
        list += QJsonObject {{QStringLiteral("name"), entry.name},
                             {QStringLiteral("value"), QJsonArray::fromStringList(entry.value)}};
    return list;
}

} // namespace simulator
