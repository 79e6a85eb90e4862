#include <zeplet/interface/custominterface.h>

namespace zeplet
{

CustomInterface::CustomInterface(QObject *parent)
    : BaseInterface(parent)
{
}

CustomInterface::~CustomInterface() = default;

} // namespace zeplet
