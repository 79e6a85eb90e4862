#include "zepleteventhandler.h"

namespace zeplet
{

ZepletEventHandler::~ZepletEventHandler() = default;

bool ZepletEventHandler::isOneShot() const
{
    return false;
}

bool ZepletEventHandler::isValid() const
{
    return true;
}

} // namespace zeplet
