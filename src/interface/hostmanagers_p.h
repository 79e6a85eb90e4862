#pragma once

#include <brisa/controllermanager.h>
#include <brisa/managerhelper.h>

namespace zeplet
{

inline brisa::ControllerManager *controllerManager()
{
    return brisa::ManagerHelper::instance()->controllerManager();
}

} // namespace zeplet
