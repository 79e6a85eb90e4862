#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <memory>

/**
 * A real rsync daemon on a loopback port of its own, with the module "hmi" for the user and the
 * password that the sync tool uses. While it lives, every rsync client of this process reaches it
 * under whatever address it is given. Aborts the test program where it can't be started.
 */
class RsyncDaemon
{
public:
    explicit RsyncDaemon(const QByteArray &password = "729413");
    ~RsyncDaemon();
    Q_DISABLE_COPY(RsyncDaemon)

    /** The directory of the module; as path("a/b"), something in it. */
    QString path(const QString &below = QString()) const;
    /** What a file of the module holds; null where there is none. */
    QByteArray read(const QString &below) const;
    quint16 port() const { return m_port; }

    void start();
    /** Nothing listens from now on. */
    void stop();

private:
    void writeConfiguration(const QByteArray &password) const;
    bool listen();

    QTemporaryDir m_directory;
    std::unique_ptr<QProcess> m_process;
    quint16 m_port = 0;
};
