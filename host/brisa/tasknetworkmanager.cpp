#include "brisa/tasknetworkmanager.h"

#include "brisa/controllermanager.h"

namespace brisa
{

TaskNetworkManager::TaskNetworkManager(const ControllerManager *controller, QObject *parent)
    : QObject(parent)
    , m_controller(controller)
{
}

bool TaskNetworkManager::isConnect() const
{
    return m_controller->isConnected();
}

} // namespace brisa
