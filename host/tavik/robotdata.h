#pragma once

#include "hostexport.h"

#include <QObject>
#include <memory>

namespace tavik
{

/**
 * The robot's data in the data store, below "tavik" and "brisa.r", for as long as this object
 * lives: the controller's lists, the open project with its points and variables, the projects on
 * the panel's disk, and run control for operator and plugins. What the controller refuses reaches
 * the operator. One at a time, made before modules start and after the settings are read. GUI
 * thread.
 */
class HOST_EXPORT RobotData : public QObject
{
    Q_OBJECT

public:
    explicit RobotData(QObject *parent = nullptr);
    ~RobotData() override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace tavik
