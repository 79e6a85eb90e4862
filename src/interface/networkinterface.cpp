#include <zeplet/interface/networkinterface.h>

#include <nexo/nexo.h>
#include <zeplet/interface/nodejson_p.h>

namespace zeplet
{

NetworkInterface::NetworkInterface(QObject *parent)
    : BaseInterface(parent)
{
}

QJsonValue NetworkInterface::get(const QString &key)
{
    return nodeToJson(nexo()->get(nullptr, key));
}

} // namespace zeplet
