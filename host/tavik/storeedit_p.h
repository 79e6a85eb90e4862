#pragma once

#include <QJsonValue>
#include <QLoggingCategory>
#include <QString>

class QObject;

namespace ostrel
{
class ModuleObject;
}

namespace tavik
{

Q_DECLARE_LOGGING_CATEGORY(tavikLog)

/** Gives the key of the data store that content, order included, where it differs. What a watcher
 *  throws is caught and logged. */
void setWhereDifferent(const QString &key, const ostrel::ModuleObject &content, QObject *origin);
void setWhereDifferent(const QString &key, const QJsonValue &content, QObject *origin);

/** Shows the operator a message of that level ("info", "warning", "error"). */
void tell(const QString &level, const QString &message);

} // namespace tavik
