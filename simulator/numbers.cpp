#include "numbers.h"

#include <QJsonArray>
#include <cmath>

namespace simulator
{

std::optional<QVector<double>> numbersOf(const QJsonValue &value, int count)
{
    QVector<double> numbers;
    for (const QJsonValue &number : value.toArray()) {
        if (!number.isDouble() || !std::isfinite(number.toDouble()))
            return std::nullopt;
        numbers += number.toDouble();
    }
    if (numbers.size() != count)
        return std::nullopt;
    return numbers;
}

double rounded(double number)
{
    return std::round(number * 1e6) / 1e6 + 0.0;
}

} // namespace simulator
