#pragma once

namespace rpc
{
class IoThread;
}

namespace brisa
{

/** The thread on which all sockets of the host live. ManagerHelper::shutdown() joins it. */
rpc::IoThread *ioThread();

} // namespace brisa
