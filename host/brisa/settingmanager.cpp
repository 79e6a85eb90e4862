#include "brisa/settingmanager.h"

#include "brisa/brisalog_p.h"
#include "ostrel/modulemanager.h"

#include <QFile>
#include <QJsonDocument>
#include <QVariant>

namespace brisa
{
namespace
{

const QJsonObject &hostDefaults()
{
    static const QJsonObject defaults {{"server.ip", "127.0.0.1"},
                                       {"server.port", 9011},
                                       {"server.hub_port", 9012},
                                       {"nexo.limit", 30}};
    return defaults;
}

/** False, with the reason, where the file is there, but can't be read as a JSON object. */
bool readFile(const QString &path, QJsonObject *values, QString *problem)
{
    QFile file(path);
    if (!file.exists())
        return true;
    if (!file.open(QIODevice::ReadOnly)) {
        *problem = file.errorString();
        return false;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError) {
        *problem = QStringLiteral("%1 at byte %2").arg(error.errorString()).arg(error.offset);
        return false;
    }
    if (!document.isObject()) {
        *problem = QStringLiteral("not a JSON object");
        return false;
    }
    *values = document.object();
    return true;
}

} // namespace

SettingManager::SettingManager(QObject *parent)
    : QObject(parent)
{
}

bool SettingManager::load(const QString &path)
{
    m_path = path;
    m_values = QJsonObject();
    QString problem;
    if (readFile(path, &m_values, &problem))
        return true;
    qCWarning(brisaLog).noquote() << QStringLiteral("settings: ") + path
            + QStringLiteral(" can't be read, defaults are used: ") + problem;
    return false;
}

bool SettingManager::contains(const QString &key) const
{
    return !value(key).isUndefined();
}

QString SettingManager::getStr(const QString &key, const QString &defaultValue) const
{
    for (const QJsonValue &found : {m_values.value(key), hostDefaults().value(key)}) {
        if (found.isString() || found.isDouble() || found.isBool())
            return found.toVariant().toString();
    }
    return defaultValue;
}

int SettingManager::getInt(const QString &key, int defaultValue) const
{
    bool ok = false;
    const int number = value(key).toVariant().toString().toInt(&ok);
    return ok ? number : hostDefaults().value(key).toInt(defaultValue);
}

double SettingManager::getDouble(const QString &key, double defaultValue) const
{
    bool ok = false;
    const double number = value(key).toVariant().toString().toDouble(&ok);
    return ok ? number : hostDefaults().value(key).toDouble(defaultValue);
}

bool SettingManager::getBool(const QString &key, bool defaultValue) const
{
    return value(key).toBool(defaultValue);
}

bool SettingManager::set(const QString &key, const QJsonValue &value)
{
    const bool differs = m_values.value(key) != value;
    m_values.insert(key, value);
    const bool saved = m_path.isEmpty() || save(key, value);
    if (differs)
        Q_EMIT changed(key);
    return saved;
}

QJsonValue SettingManager::value(const QString &key) const
{
    const QJsonValue own = m_values.value(key);
    return own.isUndefined() ? hostDefaults().value(key) : own;
}

bool SettingManager::save(const QString &key, const QJsonValue &value)
{
    QJsonObject values;
    QString problem;
    if (!readFile(m_path, &values, &problem)) {
        qCWarning(brisaLog).noquote() << QStringLiteral("settings: %1 is not saved, ").arg(key)
                + m_path + QStringLiteral(" can't be read: ") + problem;
        return false;
    }
    values.insert(key, value);
    if (ostrel::ModuleManager::writeToJson(m_path, values, true))
        return true;
    qCWarning(brisaLog).noquote() << QStringLiteral("settings: %1 is not saved, ").arg(key) + m_path
            + QStringLiteral(" can't be written");
    return false;
}

} // namespace brisa
