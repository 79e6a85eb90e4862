#pragma once

#include "hostexport.h"

#include <QObject>

namespace brisa
{

class ControllerManager;

/** Speaks of the controller's link. GUI thread. */
class HOST_EXPORT TaskNetworkManager : public QObject
{
    Q_OBJECT

public:
    /** controller outlives this object. */
    explicit TaskNetworkManager(const ControllerManager *controller, QObject *parent = nullptr);

    /** Whether the controller's endpoint is connected now. */
    bool isConnect() const;

private:
    const ControllerManager *m_controller;
};

} // namespace brisa
