#include <zeplet/interface/serviceinterface.h>

namespace zeplet
{

ServiceInterface::ServiceInterface(QObject *parent)
    : BaseInterface(parent)
{
}

ServiceInterface::~ServiceInterface() = default;

} // namespace zeplet
