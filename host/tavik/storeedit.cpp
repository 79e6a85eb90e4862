#include "tavik/storeedit_p.h"

#include "brisa/managerhelper.h"
#include "link/client.h"
#include "ostrel/moduleobject.h"

namespace tavik
{

Q_LOGGING_CATEGORY(tavikLog, "host.tavik")

void setWhereDifferent(const QString &key, const ostrel::ModuleObject &content, QObject *origin)
{
    ostrel::ModuleObject *const node = m(key);
    if (!node->isNull() && node->toJsonText(false) == content.toJsonText(false))
        return;
    rpc::deliver(key, [&] { node->copyFrom(origin, content); });
}

void setWhereDifferent(const QString &key, const QJsonValue &content, QObject *origin)
{
    ostrel::ModuleObject fresh;
    fresh.importFromJson(nullptr, content, true, true, false);
    setWhereDifferent(key, fresh, origin);
}

void tell(const QString &level, const QString &message)
{
    brisa::ManagerHelper::throwLog(nullptr, level, message);
}

} // namespace tavik
