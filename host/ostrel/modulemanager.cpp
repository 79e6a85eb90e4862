#include "ostrel/modulemanager.h"

#include "ostrel/durablefile_p.h"
#include "ostrel/jsonexchange_p.h"
#include "ostrel/jsontext_p.h"
#include "ostrel/keptfiles_p.h"
#include "ostrel/loglines_p.h"

namespace ostrel
{

namespace
{
bool refuse(const QString &path, const QString &reason)
{
    errorLine() << "writeToJson: " << reason << ", path=" << path;
    return false;
}
} // namespace

bool ModuleManager::writeToJson(const QString &path, const QJsonValue &value, bool indented)
{
    Node node;
    if (!fromJson(node, value, true, true))
        return refuse(path, QStringLiteral("the value is undefined or nested too deep"));
    QString error;
    if (!keepCopy(path, &error) || !writeDurably(path, writeJsonText(node, indented), &error))
        return refuse(path, error);
    return true;
}

} // namespace ostrel
