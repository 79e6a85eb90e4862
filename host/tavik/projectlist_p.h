#pragma once

#include <QObject>

namespace tavik
{

/**
 * The robot's projects on the panel's disk, by name, with what their "projectinfo.json" says, in
 * "tavik.project.project_list". Read again when "tavik.project.refresh_project" is triggered, and
 * when the robot's identity or the workspace changes. GUI thread; reading blocks for the disk.
 */
class ProjectList : public QObject
{
    Q_OBJECT

public:
    explicit ProjectList(QObject *parent = nullptr);

private:
    void read();
};

} // namespace tavik
