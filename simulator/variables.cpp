#include "variables.h"

#include "jsontext.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <cmath>

namespace simulator
{

namespace
{
constexpr qint64 kMaxFileSize = qint64(64) * 1024 * 1024;

const QString kElement = QStringLiteral("[0][0][0]");

/** The value as one of the same kind as the former one; undefined where it is none. */
QJsonValue fitted(const QJsonValue &former, const QJsonValue &value)
{
    if (former.isNull() || former.isUndefined() || former.type() == value.type())
        return value;
    const QString text = value.toString();
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (former.isDouble() && isNumber && std::isfinite(number))
        return number;
    const bool isTrue = text == QLatin1String("true");
    if (former.isBool() && (isTrue || text == QLatin1String("false")))
        return isTrue;
    return QJsonValue(QJsonValue::Undefined);
}
} // namespace

Variables::Variable Variables::Variable::fromRecord(const QJsonObject &record)
{
    return {record[QStringLiteral("name")].toString(), record[QStringLiteral("type")].toString(),
            record[QStringLiteral("value")][kElement], record[QStringLiteral("pers")].toBool(),
            record};
}

QJsonObject Variables::Variable::toJson() const
{
    return {{QStringLiteral("name"), name},
            {QStringLiteral("type"), type},
            {QStringLiteral("value"), value.isUndefined() ? QJsonValue() : value},
            {QStringLiteral("pers"), persistent},
            {QStringLiteral("record"), record}};
}

Variables::Variables(const QVector<Variable> &own, QObject *parent)
    : QObject(parent)
{
    for (const Variable &variable : own)
        m_own.insert(variable.name, variable);
}

void Variables::setProject(const QVector<Variable> &variables)
{
    m_project.clear();
    for (const Variable &variable : variables)
        m_project.insert(variable.name, variable);
    emit changed(QString());
}

QJsonObject Variables::changedProjectValues() const
{
    QJsonObject values;
    for (const Variable &variable : m_project) {
        if (variable.persistent
            && variable.value != variable.record[QStringLiteral("value")][kElement])
            values.insert(variable.name, variable.value);
    }
    return values;
}

void Variables::restoreProjectValues(const QJsonObject &values)
{
    for (auto value = values.begin(); value != values.end(); ++value) {
        if (m_project.contains(value.key()) && !m_own.contains(value.key()))
            setValue(value.key(), *value);
    }
}

Refusal Variables::put(const Variable &variable)
{
    if (m_project.size() >= kMaxVariables && !m_project.contains(variable.name))
        return QStringLiteral("there are %1 variables already").arg(kMaxVariables);
    m_project.insert(variable.name, variable);
    emit changed(variable.name);
    return std::nullopt;
}

void Variables::remove(const QString &name)
{
    if (m_project.remove(name) > 0)
        emit changed(name);
}

Refusal Variables::checkValue(const QString &name, const QJsonValue &value) const
{
    const Variable *variable = find(name);
    if (variable == nullptr)
        return QStringLiteral("there is no variable '%1'").arg(name);
    if (fitted(variable->value, value).isUndefined())
        return QStringLiteral("the value does not fit the variable '%1' (%2)")
            .arg(name, variable->type);
    return std::nullopt;
}

Refusal Variables::setValue(const QString &name, const QJsonValue &value)
{
    if (auto refusal = checkValue(name, value))
        return refusal;
    Variable &variable = m_own.contains(name) ? m_own[name] : m_project[name];
    const QJsonValue kept = fitted(variable.value, value);
    if (variable.value == kept)
        return std::nullopt;
    variable.value = kept;
    emit changed(name);
    return std::nullopt;
}

const Variables::Variable *Variables::find(const QString &name) const
{
    for (const auto *variables : {&m_own, &m_project}) {
        const auto found = variables->constFind(name);
        if (found != variables->cend())
            return &*found;
    }
    return nullptr;
}

QJsonObject Variables::toJson() const
{
    QJsonObject object;
    for (const auto *variables : {&m_project, &m_own}) {
        for (const Variable &variable : *variables)
            object.insert(variable.name, variable.toJson());
    }
    return object;
}

QString Variables::textOf(const QJsonValue &value)
{
    if (value.isString())
        return value.toString();
    if (value.isNull() || value.isUndefined())
        return {};
    return QString::fromUtf8(jsonToText(value));
}

QVector<Variables::Variable> readVariableFile(const QString &path, QString *error)
{
    QFile file(path);
    if (path.isEmpty() || !file.exists())
        return {};
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMaxFileSize) {
        *error = QStringLiteral("%1 cannot be read").arg(path);
        return {};
    }
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    const QJsonValue list = document.object()[QStringLiteral("variables")];
    if (!list.isArray()) {
        *error = QStringLiteral("%1 holds no list of variables").arg(path);
        return {};
    }
    QVector<Variables::Variable> variables;
    for (const QJsonValue &record : list.toArray()) {
        const auto variable = Variables::Variable::fromRecord(record.toObject());
        if (!variable.name.isEmpty() && variables.size() < Variables::kMaxVariables)
            variables += variable;
    }
    return variables;
}

} // namespace simulator
