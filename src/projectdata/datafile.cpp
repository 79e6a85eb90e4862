#include <zeplet/projectdata/datafile.h>

#include <ostrel/modulemanager.h>
#include <zeplet/interface/nodejson_p.h>
#include <zeplet/log/hostlines_p.h>

#include <QJsonArray>
#include <QJsonObject>

namespace zeplet
{

namespace
{

const QString fileVersion = QStringLiteral("0.2");

// A list that holds nothing yet is an empty array, too.
QJsonArray recordsOf(const ostrel::ModuleObject *list)
{
    return nodeToJson(list).toArray();
}

bool writeFile(const QString &path, const QJsonValue &content, const QString &failure)
{
    const bool written = ostrel::ModuleManager::writeToJson(path, content, true);
    if (!written)
        errorLine() << failure;
    return written;
}

bool writeVersionedFile(const QString &path, const ostrel::ModuleObject *list, const QString &kind,
                        const QString &key)
{
    infoLine() << "begin save " << kind << " json";
    const QJsonObject content {{QStringLiteral("version"), fileVersion}, {key, recordsOf(list)}};
    const bool written
        = writeFile(path, content, QStringLiteral("write %1 json file failed").arg(kind));
    if (written)
        infoLine() << "end save " << kind << " json";
    return written;
}

} // namespace

bool writeDataToJson(const QString &path, ostrel::ModuleObject *list, const QString &kind)
{
    if (kind == QLatin1String("var"))
        return writeVersionedFile(path, list, kind, QStringLiteral("variables"));
    if (kind == QLatin1String("point"))
        return writeVersionedFile(path, list, kind, QStringLiteral("points"));
    return writeFile(path, recordsOf(list), QStringLiteral("write json file failed"));
}

} // namespace zeplet
