#pragma once

#include <simulator/fileserver.h>

#include <QTemporaryDir>

/**
 * The open project of this process, with a disk, a controller's rsync daemon (on port 873 if it is
 * to be had) and the desktop panel's tools. Made on first use, when its directory becomes the
 * working directory: by then the results have their file.
 */
class Project
{
public:
    ~Project();
    Q_DISABLE_COPY(Project)
    static Project &instance();
    static void close();

    /** Opens the project anew with the first so many of ten thousand point records. */
    void load(int points);
    /** The same where it has not so many already, with the first edit behind it. */
    void prepare(int points);
    /** Changes the pose of one point after the other. Aborts where the edit fails. */
    void edit();
    /** point.json on the panel, and where it goes. */
    QString file() const;
    static QString remotePath();

    /** While it lives, the rsync that is found is a program that ends at once. */
    class WithoutRsync
    {
    public:
        WithoutRsync();
        ~WithoutRsync();
        Q_DISABLE_COPY(WithoutRsync)

    private:
        const QByteArray m_path = qgetenv("PATH");
    };

private:
    Project();

    QTemporaryDir m_directory;
    const QString m_home;
    simulator::FileServer m_controller;
    int m_points = 0;
    int m_edits = 0;
};
