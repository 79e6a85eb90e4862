#pragma once

#include <QJsonDocument>
#include <QJsonValue>
#include <QVariant>
#include <QtNumeric>
#include <algorithm>

namespace zeplet
{

/** Whether every number in a value, lists and maps included, is finite: JSON and the controller
 *  know no others, and would take something else in their place. */
inline bool isFinite(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return qIsFinite(value.toDouble());
    case QMetaType::QString:
        return true;
    case QMetaType::QJsonValue:
        return isFinite(value.toJsonValue().toVariant());
    case QMetaType::QJsonDocument:
        return isFinite(value.toJsonDocument().toVariant());
    default:
        break;
    }
    QVariantList parts;
    if (value.canConvert<QVariantMap>())
        parts = value.value<QVariantMap>().values();
    else if (value.canConvert<QVariantHash>())
        parts = value.value<QVariantHash>().values();
    else if (value.canConvert<QVariantList>())
        parts = value.value<QVariantList>();
    return std::all_of(parts.begin(), parts.end(), isFinite);
}

} // namespace zeplet
