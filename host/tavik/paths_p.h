#pragma once

#include <QByteArray>
#include <QString>

class QJsonObject;

/** Where projects lie on the panel's disk: `<workspace>/<robot>/<project>/`. */
namespace tavik
{

/** The controller's identity, "LOCALHOST" where none is known. */
QString robotName();
/** `<workspace>/<robot>`; empty where there is no workspace. */
QString robotDirectory();
/** `<workspace>/<robot>/<name>`; empty where the name is no plain one, or there is no workspace. */
QString projectDirectory(const QString &name);

/** Projects that are none for the operator: the scratch project and that of the default tasks. */
bool isReservedProject(const QString &name);

/** The JSON object in a plain file of at most 1 MiB. False where there is none; problem says why,
 *  and stays empty where there is no file. Blocks for the disk. */
bool readSmallObject(const QString &path, QJsonObject *object, QString *problem);

/**
 * The content of a plain file; links, directories and devices are none. False where it can't be
 * had, or is larger than limit bytes; problem says why and stays empty where there is no file.
 * Blocks for the disk.
 */
bool readPlainFile(const QString &path, qint64 limit, QByteArray *content, QString *problem);

} // namespace tavik
