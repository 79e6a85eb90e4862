#pragma once

#include "hostexport.h"

#include <QHash>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

namespace brisa
{

class BaseContentWidget;

/**
 * The record of the robot-language instructions that the program editor knows. Whoever brings
 * instructions writes into the tables; entries stay for the life of the process. Keys are
 * case-sensitive. Lists keep what is entered twice. GUI thread.
 */
class HOST_EXPORT RlManager
{
public:
    /** Makes a widget as a child of the one given. It may throw: it runs a plugin's code. */
    using WidgetMaker = std::function<BaseContentWidget *(QWidget *)>;

    /** The process-wide record, made on first use, from any thread. */
    static RlManager &getRlManager();

    QStringList typeKeys; ///< the instruction types, in the order in which lines are recognised
    QList<QPair<QString, QString>> groups; ///< the key of a group and its title
    QHash<QString, QStringList> groupTable; ///< the types of a group, by its key
    QHash<QString, QString> descriptions; ///< by type
    QHash<QString, QString> defaults; ///< by type: what a new instruction reads
    QHash<QString, QString> patterns; ///< by "c_" + type: regular expression of its lines
    QHash<QString, QString> skeletons; ///< by "s_" + type
    QHash<QString, WidgetMaker> insertWidgets; ///< by type
    QHash<QString, WidgetMaker> propertyWidgets; ///< by type

private:
    RlManager() = default;
    ~RlManager() = default;
    Q_DISABLE_COPY_MOVE(RlManager)
};

} // namespace brisa
