#pragma once

#include <QDateTime>
#include <QFileInfo>
#include <QJsonObject>

namespace panel
{

/** What tells that a library is another one than before: path, size and time of change. */
inline QJsonObject fileState(const QFileInfo &library)
{
    return {{"file", library.absoluteFilePath()},
            {"size", library.size()},
            {"modified", library.lastModified().toUTC().toString(Qt::ISODateWithMs)}};
}

} // namespace panel
