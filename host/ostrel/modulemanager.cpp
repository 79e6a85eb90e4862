#include "ostrel/modulemanager.h"

#include "ostrel/durablefile_p.h"
#include "ostrel/jsontext_p.h"
#include "ostrel/keptfiles_p.h"
#include "ostrel/loglines_p.h"
#include "ostrel/moduleobject_p.h"

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
    if (value.isUndefined())
        return refuse(path, QStringLiteral("the value is undefined"));
    const auto write = [&](QIODevice *file, QString *error) {
        const Node *list = ModuleObjectPrivate::lastExportedNode();
        const bool complete = writeJsonValue(value, indented, list, file);
        if (!complete)
            *error = QStringLiteral("the value is nested too deep");
        return complete;
    };
    QString error;
    if (!keepCopy(path, &error) || !writeDurably(path, write, &error))
        return refuse(path, error);
    return true;
}

} // namespace ostrel
