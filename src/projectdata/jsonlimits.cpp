#include <zeplet/projectdata/jsonlimits_p.h>

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace zeplet
{

namespace
{

// Far more than an element has, far less than parsers of JSON take.
constexpr int maximumLevels = 64;

bool fits(const QJsonValue &value, int levels)
{
    const auto fitsBelow = [levels](const QJsonValue &child) { return fits(child, levels - 1); };
    if (value.isDouble())
        return std::isfinite(value.toDouble());
    if (!value.isObject() && !value.isArray())
        return true;
    if (levels == 0)
        return false;
    const QJsonObject object = value.toObject();
    const QJsonArray array = value.toArray();
    return std::all_of(object.begin(), object.end(), fitsBelow)
        && std::all_of(array.begin(), array.end(), fitsBelow);
}

} // namespace

bool canBeStored(const QJsonValue &value)
{
    return fits(value, maximumLevels);
}

} // namespace zeplet
