#include "tavik/paths_p.h"

#include "brisa/managerhelper.h"
#include "brisa/settingmanager.h"
#include "ostrel/moduleobject.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <cerrno>
#include <fcntl.h>
#include <plainname.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavik
{

namespace
{

constexpr qint64 mebibyte = 1048576;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(tavik)
};

/** Opens it without following a link and without waiting for a pipe's other end. */
int openPlainFile(const QString &path, QString *problem)
{
    const int handle = ::open(QFile::encodeName(path).constData(),
                              O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (handle < 0 && errno == ELOOP)
        *problem = Texts::tr("it is a symbolic link");
    else if (handle < 0 && errno != ENOENT)
        *problem = qt_error_string(errno);
    struct stat info = {};
    if (handle < 0 || (::fstat(handle, &info) == 0 && S_ISREG(info.st_mode)))
        return handle;
    ::close(handle);
    *problem = Texts::tr("it is no plain file");
    return -1;
}

} // namespace

QString robotName()
{
    const QString id = m(QStringLiteral("brisa.r.id"))->getStr(QString());
    return names::isPlainName(id) ? id : QStringLiteral("LOCALHOST");
}

QString robotDirectory()
{
    const brisa::SettingManager *settings = brisa::ManagerHelper::instance()->settingManager();
    const QString workspace = settings->getStr(QStringLiteral("workspace"), QString());
    return workspace.isEmpty() ? QString() : workspace + QLatin1Char('/') + robotName();
}

QString projectDirectory(const QString &name)
{
    const QString robot = robotDirectory();
    const bool usable = names::isPlainName(name) && !robot.isEmpty();
    return usable ? robot + QLatin1Char('/') + name : QString();
}

bool isReservedProject(const QString &name)
{
    return name == QLatin1String("_temp") || name == QLatin1String("dolmen_default");
}

bool readPlainFile(const QString &path, qint64 limit, QByteArray *content, QString *problem)
{
    problem->clear();
    const int handle = openPlainFile(path, problem);
    if (handle < 0)
        return false;
    QFile file;
    file.open(handle, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    if (file.size() > limit) {
        *problem = Texts::tr("it is larger than %1 MiB").arg(limit / mebibyte);
        return false;
    }
    *content = file.readAll();
    if (file.error() == QFileDevice::NoError)
        return true;
    *problem = file.errorString();
    return false;
}

bool readSmallObject(const QString &path, QJsonObject *object, QString *problem)
{
    QByteArray content;
    if (!readPlainFile(path, mebibyte, &content, problem))
        return false;
    const QJsonDocument document = QJsonDocument::fromJson(content);
    *object = document.object();
    if (!document.isObject())
        *problem = Texts::tr("it holds no JSON object");
    return document.isObject();
}

} // namespace tavik
