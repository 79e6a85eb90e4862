#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/**
 * Programs that take the place of rsync and sudo while it lives: each records how it was called
 * and then runs a piece of shell. The working directory is one of its own, with "tools/rsync.exe".
 */
class StandIns
{
public:
    StandIns()
    {
        QDir::setCurrent(m_directory.path());
        QDir().mkpath(QStringLiteral("tools"));
        QDir().mkpath(QStringLiteral("bin"));
        qputenv("PATH", m_directory.filePath(QStringLiteral("bin:")).toUtf8() + m_path);
        write(QStringLiteral("bin/sudo"), "cat >>calls");
        setRsync("exit 0");
    }

    ~StandIns()
    {
        qputenv("PATH", m_path);
        QDir::setCurrent(m_home);
    }

    void setRsync(const QByteArray &body)
    {
        write(QStringLiteral("bin/rsync"), body);
        write(QStringLiteral("tools/rsync.exe"), body);
    }

    static void removeRsync()
    {
        QFile::remove(QStringLiteral("tools/rsync.exe"));
        qputenv("PATH", "/nowhere");
    }

    /** What was called since the last call: a line each, the arguments separated by "|". */
    static QStringList takeCalls()
    {
        QFile file(QStringLiteral("calls"));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        const QString text = QString::fromUtf8(file.readAll());
        file.remove();
        return text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    static void touch(const QString &name) { QFile(name).open(QIODevice::WriteOnly); }

private:
    static void write(const QString &name, const QByteArray &body)
    {
        // A new file each time: the old one may still be running.
        QFile::remove(name);
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("%s can't be written", qPrintable(name));
        file.write("#!/bin/sh\n{ printf '%s' \"$(basename \"$0\")\"; printf '|%s' \"$@\"; echo; }"
                   " >>calls\n"
                   + body + '\n');
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    const QByteArray m_path = qgetenv("PATH");
    const QString m_home = QDir::currentPath();
    QTemporaryDir m_directory;
};
