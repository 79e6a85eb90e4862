#pragma once

#include <QString>
#include <QVector>

/** One project of the robot, as the panel knows it. */
struct Project {
    QString name;
    QString description;
    QString created; ///< as it is written in the project
    bool open = false;
    bool autoload = false; ///< the controller loads it when it starts
};

/** The projects on the panel's disk, in a person's order: "cell 2" before "cell 10". */
QVector<Project> readProjects();
/** The directory that holds them: the robot's identity. */
QString robotDirectory();
