#pragma once

#include <QHash>
#include <QJsonValue>
#include <QString>

namespace simulator
{

/** Fixed answers to commands that nothing here plays, or that a scenario wants otherwise. */
struct Answers {
    QHash<QString, QJsonValue> controller; ///< by the controller's full command name
    QHash<QString, QJsonValue> hub; ///< by the key of `hub.command`
    QHash<QString, QJsonValue> plugin; ///< by the command of `hub.plugin`; arrays
};

} // namespace simulator
