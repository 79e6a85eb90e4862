#pragma once

#include "plugintag.h"

#include <QFileInfo>
#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace panel
{

/** What the panel knows about one plugin library. */
struct PluginRecord {
    enum State {
        Running, ///< loaded, and its module is driven
        Refused, ///< not loaded, or loaded without a usable plugin
        LeftOut, ///< took an earlier start down
        Faulty ///< its module threw, and is driven no longer
    };

    QFileInfo file;
    PluginTag tag; ///< members are empty where there is no tag
    State state = Running;
    QString sentence; ///< cause and remedy, for the operator; empty while all is well
    QStringList modules; ///< names that it entered into the host's module factory

    /** The name to show: the tag's where it is a plain one, else the file's. */
    QString name() const;
    QJsonObject toJson() const;
};

} // namespace panel
