#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QString>

/** The records of the open project, in their three places. kind is "point" or "var". */
namespace projectfiles
{

/** The records in the panel's data store. */
QJsonArray stored(const QString &kind);
/** The bytes of "<kind>.json" on the panel and on the controller; null where there is none. */
QByteArray onPanel(const QString &kind);
QByteArray onController(const QString &kind);
/** The records that such a file holds. */
QJsonArray recordsOf(const QByteArray &file);
/** The record of that name; an empty object where there is none. */
QJsonObject recordOf(const QJsonArray &records, const QString &name);

/** The directory of the open project on the panel; that of any project on the controller. */
QString panelDirectory();
QString controllerDirectory(const QString &project);

/** Says which of the three places differ; empty where store, panel and controller hold the same,
 *  the files byte for byte. */
QString difference(const QString &kind);
/** The same for the store and the panel's file alone. */
QString panelDifference(const QString &kind);

} // namespace projectfiles
