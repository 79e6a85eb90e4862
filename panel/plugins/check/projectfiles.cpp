#include "projectfiles.h"

#include <brisa/managerhelper.h>
#include <brisa/settingmanager.h>
#include <zeplet/zeplet.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

using namespace zeplet;

namespace projectfiles
{

namespace
{

QByteArray read(const QString &directory, const QString &kind)
{
    QFile file(directory + QLatin1Char('/') + kind + QStringLiteral(".json"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

QJsonArray stored(const QString &kind)
{
    return zepletInterface()
        ->getNodeData(QStringLiteral("tavik.project.%1._list").arg(kind))
        .toArray();
}

QByteArray onPanel(const QString &kind)
{
    return read(panelDirectory(), kind);
}

QByteArray onController(const QString &kind)
{
    const QString project = zepletInterface()->getCurProject().section(QLatin1Char('/'), -1);
    return read(controllerDirectory(project), kind);
}

QJsonArray recordsOf(const QByteArray &file)
{
    const QJsonObject content = QJsonDocument::fromJson(file).object();
    return content.value(QStringLiteral("points"))
        .toArray(content.value(QStringLiteral("variables")).toArray());
}

QJsonObject recordOf(const QJsonArray &records, const QString &name)
{
    for (const QJsonValue &record : records) {
        if (record[QStringLiteral("name")] == name)
            return record.toObject();
    }
    return {};
}

QString panelDirectory()
{
    const QString workspace = brisa::ManagerHelper::instance()->settingManager()->getStr(
        QStringLiteral("workspace"), QString());
    return workspace + QLatin1Char('/') + zepletInterface()->getCurProject();
}

QString controllerDirectory(const QString &project)
{
    return qEnvironmentVariable("ZEPLET_FILES") + QStringLiteral("/hmi/") + project;
}

QString difference(const QString &kind)
{
    if (onPanel(kind) != onController(kind))
        return kind + QStringLiteral(".json differs on panel and controller");
    return panelDifference(kind);
}

QString panelDifference(const QString &kind)
{
    const QByteArray file = onPanel(kind);
    if (file.isNull())
        return QStringLiteral("the panel has no %1.json").arg(kind);
    return recordsOf(file) == stored(kind)
        ? QString()
        : kind + QStringLiteral(".json holds something else than the data store");
}

} // namespace projectfiles
