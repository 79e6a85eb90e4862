#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <startguard.h>

/** Fixture libraries, and copies of them with patched bytes. */
namespace pluginfiles
{

inline QString path(const QString &fixture)
{
    return QStringLiteral(ZEPLET_FIXTURE_PLUGIN_DIR "/%1.so").arg(fixture);
}

inline QByteArray bytes(const QString &fixture)
{
    QFile file(path(fixture));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** The fixture with the first occurrence of a text replaced by another one of the same length. */
inline QByteArray patched(const QString &fixture, const QByteArray &from, const QByteArray &to)
{
    QByteArray content = bytes(fixture);
    const int at = content.indexOf(from);
    Q_ASSERT(at >= 0 && from.size() == to.size());
    return content.replace(at, from.size(), to);
}

#if defined(__aarch64__)
constexpr char machine[] = "aarch64", otherMachine[] = "x86_64";
constexpr char head[] = "\3\0\xb7", otherHead[] = "\3\0\x3e"; // ELF: a shared object, its machine
#else
constexpr char machine[] = "x86_64", otherMachine[] = "aarch64";
constexpr char head[] = "\3\0\x3e", otherHead[] = "\3\0\xb7";
#endif

/** The fixture as if it were built for the other machine. */
inline QByteArray foreign(const QString &fixture)
{
    return patched(fixture, {head, sizeof head}, {otherHead, sizeof otherHead});
}

inline void write(const QString &directory, const QString &name, const QByteArray &content)
{
    QFile file(QDir(directory).filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s can't be written", qPrintable(file.fileName()));
}

inline void copy(const QString &directory, const QString &fixture, const QString &name = QString())
{
    write(directory, (name.isEmpty() ? fixture : name) + QStringLiteral(".so"), bytes(fixture));
}

/** Leaves the runtime directory as a panel does that died in the init of that plugin. */
inline void leaveDeathInInit(const QString &runtimeDirectory, const QString &name,
                             const QString &library)
{
    QFile starting(QDir(runtimeDirectory).filePath(QStringLiteral("starting")));
    QByteArray left;
    {
        panel::StartGuard guard(runtimeDirectory);
        guard.enterLoading(name, library);
        guard.enter(name, QStringLiteral("init"));
        if (starting.open(QIODevice::ReadOnly))
            left = starting.readAll();
    }
    write(runtimeDirectory, QStringLiteral("starting"), left);
}

} // namespace pluginfiles
