#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <optional>

namespace simulator
{

/** Any JSON value from its text, scalars included. Nothing where the text is none; then `error`
 *  says why. */
std::optional<QJsonValue> jsonFromText(const QString &text, QString *error);

/** The compact text of a JSON value on one line; an undefined one is written as null. */
QByteArray jsonToText(const QJsonValue &value);

} // namespace simulator
