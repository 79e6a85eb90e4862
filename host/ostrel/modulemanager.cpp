#include "ostrel/modulemanager.h"

#include "ostrel/durablefile_p.h"
#include "ostrel/jsontext_p.h"
#include "ostrel/keptfiles_p.h"
#include "ostrel/loglines_p.h"
#include "ostrel/moduleobject_p.h"

#include <QIODevice>

namespace ostrel
{

namespace
{
bool refuse(const char *operation, const QString &path, const QString &reason)
{
    errorLine() << operation << ": " << reason << ", path=" << path;
    return false;
}

bool writeKept(const char *operation, const QString &path, const ContentWriter &write)
{
    QString error;
    if (!keepCopy(path, &error) || !writeDurably(path, write, &error))
        return refuse(operation, path, error);
    return true;
}
} // namespace

bool ModuleManager::writeToJson(const QString &path, const QJsonValue &value, bool indented)
{
    if (value.isUndefined())
        return refuse("writeToJson", path, QStringLiteral("the value is undefined"));
    const auto write = [&](QIODevice *file, QString *error) {
        const Node *list = ModuleObjectPrivate::lastExportedNode();
        const bool complete = writeJsonValue(value, indented, list, file);
        if (!complete)
            *error = QStringLiteral("the value is nested too deep");
        return complete;
    };
    return writeKept("writeToJson", path, write);
}

bool ModuleManager::writeFile(const QString &path, const QByteArray &content)
{
    // A file that takes less says why.
    const auto write = [&content](QIODevice *file, QString *) {
        file->write(content);
        return true;
    };
    return writeKept("writeFile", path, write);
}

} // namespace ostrel
