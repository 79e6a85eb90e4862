#include "retention.h"

#include "datedname.h"

#include <QDir>
#include <QFileInfo>

namespace logbase
{

namespace
{

bool isOfLog(const QString &fileName, const QString &logName, const QString &suffix)
{
    QString name;
    QString date;
    int index = 0;
    return fileName.endsWith(suffix)
        && parseDatedName(fileName.chopped(suffix.size()), name, date, index) && name == logName;
}

} // namespace

void keepNewestFiles(const QString &base, const QString &ext, int count, const QString &current)
{
    const QString logName = QFileInfo(base).fileName();
    const QString suffix = QLatin1Char('.') + ext;
    const QFileInfo kept(current);
    int left = count - 1; // beside the current one
    const QFileInfoList newestFirst
        = QFileInfo(base).dir().entryInfoList(QDir::Files | QDir::NoSymLinks, QDir::Time);
    for (const QFileInfo &file : newestFirst) {
        if (file == kept || !isOfLog(file.fileName(), logName, suffix)) {
            continue;
        }
        if (--left < 0) {
            QFile::remove(file.filePath());
        }
    }
}

} // namespace logbase
