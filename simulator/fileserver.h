#pragma once

#include "rsyncdaemon.h"

#include <QTcpSocket>
#include <optional>

namespace simulator
{

/** Where the controller's files are and how they are reached. */
struct FileOptions {
    QString directory; ///< the file root; empty: the controller has no files
    std::optional<quint16>
        port; ///< 0: any free one; nothing: 873, or any free one if that is taken
};

/**
 * The controller's files: a directory whose part "hmi" a real rsync daemon serves on loopback as
 * the module "hmi". While the daemon is stopped its port stays reserved, so that a connection is
 * refused and it can start again on the same one. Lives on the simulator's thread.
 */
class FileServer : public QObject
{
    Q_OBJECT

public:
    static constexpr quint16 kStandardPort = 873;

    explicit FileServer(const FileOptions &options, QObject *parent = nullptr);

    /** Makes the directories and starts the daemon; waits up to 5 s until it listens. Without a
     *  directory there is nothing to do. */
    bool open(QString *error);
    void close();
    bool isOpen() const { return m_daemon.isRunning(); }

    /** 0 as long as the daemon was never started. */
    quint16 port() const { return m_port; }
    /** The directory that the module "hmi" is; "" where the controller has no files. */
    QString root() const;

signals:
    void problem(const QString &line);

private:
    bool prepare(QString *error) const;
    bool openOn(quint16 port, QString *error);
    bool reserve(quint16 port, QString *error);
    QString inDirectory(const char *name) const;

    FileOptions m_options;
    RsyncDaemon m_daemon;
    QTcpSocket m_reserved; ///< bound to the port, never listening
    quint16 m_port = 0;
};

} // namespace simulator
