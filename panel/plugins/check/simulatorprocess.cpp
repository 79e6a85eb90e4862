#include "simulatorprocess.h"

#include <brisa/managerhelper.h>
#include <brisa/settingmanager.h>

#include <QJsonDocument>
#include <QJsonObject>

SimulatorProcess::SimulatorProcess(QObject *parent)
    : QObject(parent)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &SimulatorProcess::readOutput);
}

SimulatorProcess::~SimulatorProcess()
{
    m_process.kill();
    m_process.waitForFinished();
}

void SimulatorProcess::start()
{
    auto *settings = brisa::ManagerHelper::instance()->settingManager();
    QStringList arguments
        = {QStringLiteral("--port"), settings->getStr(QStringLiteral("server.port"), QString()),
           QStringLiteral("--hub-port"),
           settings->getStr(QStringLiteral("server.hub_port"), QString())};
    const QString scenario = qEnvironmentVariable("ZEPLET_SCENARIO");
    if (!scenario.isEmpty())
        arguments << QStringLiteral("--scenario") << scenario;
    const QString files = qEnvironmentVariable("ZEPLET_FILES");
    if (!files.isEmpty())
        arguments << QStringLiteral("--files") << files << QStringLiteral("--rsync-port")
                  << qEnvironmentVariable("ZEPLET_RSYNC_PORT");
    m_ready = false;
    m_due = 0;
    m_process.start(qEnvironmentVariable("ZEPLET_SIMULATOR"), arguments);
}

void SimulatorProcess::control(const QString &line)
{
    ++m_due;
    m_process.write(line.toUtf8() + '\n');
}

QJsonValue SimulatorProcess::result() const
{
    return m_due == 0 ? m_result : QJsonValue::Undefined;
}

void SimulatorProcess::kill()
{
    m_process.kill();
}

bool SimulatorProcess::isRunning() const
{
    return m_process.state() != QProcess::NotRunning;
}

qint64 SimulatorProcess::processId() const
{
    return m_process.processId();
}

void SimulatorProcess::readOutput()
{
    while (m_process.canReadLine()) {
        const QByteArray line = m_process.readLine();
        if (line.startsWith("ready "))
            m_ready = true;
        else
            readAnswer(line);
    }
}

void SimulatorProcess::readAnswer(const QByteArray &line)
{
    const QJsonObject answer = QJsonDocument::fromJson(line).object();
    m_result = answer.value(QStringLiteral("ok")).toBool() ? answer.value(QStringLiteral("result"))
                                                           : QJsonValue(QJsonValue::Undefined);
    if (m_due > 0)
        --m_due;
}
