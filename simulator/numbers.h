#pragma once

#include <QJsonValue>
#include <QVector>
#include <optional>

namespace simulator
{

/** The finite numbers of a JSON array; nothing where it isn't one of exactly `count` of them. */
std::optional<QVector<double>> numbersOf(const QJsonValue &value, int count);

/** Without the noise of the arithmetic, which people would read and clients compare. */
double rounded(double number);

} // namespace simulator
