#pragma once

#include <QJsonValue>
#include <QString>
#include <QVector>

namespace simulator
{

/** One of the controller's own variables, such as a speed or a zone. */
struct SystemVariable {
    QString name;
    QString type;
    QJsonValue value;
};
using SystemVariables = QVector<SystemVariable>;

/** Speeds in mm/s and zones in mm. */
SystemVariables defaultSystemVariables();

} // namespace simulator
