#include "startguard.h"

#include "filestate.h"
#include "panellog.h"

#include <QDir>
#include <QJsonDocument>
#include <QSaveFile>
#include <sys/file.h>
#include <unistd.h>

namespace panel
{

namespace
{

/** Enough for a name, a step and a path. */
constexpr qint64 maximumListSize = 1 << 20;
constexpr qint64 maximumEntrySize = 8192;

QJsonObject readList(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.read(maximumListSize)).object();
}

} // namespace

StartGuard::StartGuard(const QString &runtimeDirectory)
    : m_listFile(QDir(runtimeDirectory).filePath(QStringLiteral("left-out.json")))
    , m_starting(QDir(runtimeDirectory).filePath(QStringLiteral("starting")))
{
    m_active = QDir().mkpath(runtimeDirectory) && lock();
    if (!m_active)
        return;
    m_leftOut = readList(m_listFile);
    evaluateLastStart();
}

StartGuard::~StartGuard()
{
    if (m_active)
        m_starting.resize(0);
}

bool StartGuard::isActive() const
{
    return m_active;
}

/** Holds the file for the life of this object; the system lets go of it when the process dies. */
bool StartGuard::lock()
{
    return m_starting.open(QIODevice::ReadWrite | QIODevice::Unbuffered)
        && flock(m_starting.handle(), LOCK_EX | LOCK_NB) == 0;
}

void StartGuard::evaluateLastStart()
{
    const QByteArray content = m_starting.read(maximumEntrySize);
    m_starting.resize(0);
    QJsonObject state = QJsonDocument::fromJson(content.left(content.indexOf('\0'))).object();
    const QString name = state.take(QStringLiteral("plugin")).toString();
    if (name.isEmpty())
        return;
    m_leftOut.insert(name, state);
    save();
}

void StartGuard::enterLoading(const QString &name, const QString &library)
{
    m_libraries.insert(name, fileState(QFileInfo(library)));
    enter(name, QStringLiteral("loading"));
}

void StartGuard::addModule(const QString &module, const QString &name)
{
    if (module != name)
        m_plugins.insert(module, name);
}

void StartGuard::enter(const QString &module, const QString &step)
{
    const QString name = m_plugins.value(module, module);
    // A module without a library is the host's own: there is nothing to leave out.
    if (!m_active || !m_libraries.contains(name))
        return;
    QJsonObject entry = m_libraries.value(name);
    entry.insert(QStringLiteral("plugin"), name);
    entry.insert(QStringLiteral("step"), step);
    write(QJsonDocument(entry).toJson(QJsonDocument::Compact));
}

void StartGuard::leave()
{
    if (m_active)
        write(QByteArray());
}

/** One system call, because there are several steps of every plugin: what a longer entry leaves
 *  behind the closing zero does not count. */
void StartGuard::write(const QByteArray &entry)
{
    const auto size = static_cast<size_t>(entry.size()) + 1;
    if (::pwrite(m_starting.handle(), entry.constData(), size, 0) < 0)
        errorLine() << QStringLiteral("%1 can't be written.").arg(m_starting.fileName());
}

bool StartGuard::isLeftOut(const QString &name, const QFileInfo &library) const
{
    const auto known = m_leftOut.find(name);
    if (known == m_leftOut.end())
        return false;
    QJsonObject state = known->toObject();
    state.remove(QStringLiteral("step"));
    return state == fileState(library);
}

QString StartGuard::fatalStep(const QString &name) const
{
    return m_leftOut.value(name).toObject().value(QStringLiteral("step")).toString();
}

bool StartGuard::tryAgain(const QString &name)
{
    if (!m_leftOut.contains(name))
        return false;
    m_leftOut.remove(name);
    save();
    return true;
}

void StartGuard::save() const
{
    QSaveFile file(m_listFile);
    if (file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(m_leftOut).toJson()) >= 0
        && file.commit())
        return;
    errorLine() << QStringLiteral("%1 can't be written: %2").arg(m_listFile, file.errorString());
}

} // namespace panel
