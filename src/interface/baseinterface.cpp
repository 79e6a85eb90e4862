#include <zeplet/interface/baseinterface.h>

namespace zeplet
{

BaseInterface::BaseInterface(QObject *parent)
    : QObject(parent)
{
}

BaseInterface::~BaseInterface() = default;

} // namespace zeplet
