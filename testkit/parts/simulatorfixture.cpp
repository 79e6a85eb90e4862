#include "simulatorfixture.h"

namespace
{
QUrl urlOf(quint16 port)
{
    return QUrl(QStringLiteral("ws://127.0.0.1:%1").arg(port));
}
} // namespace

SimulatorFixture::SimulatorFixture(const simulator::Scenario &scenario)
{
    m_thread.start();
    auto *context = new QObject;
    context->moveToThread(&m_thread);
    QMetaObject::invokeMethod(
        context, [&] { m_simulator = new simulator::Simulator(scenario); },
        Qt::BlockingQueuedConnection);
    context->deleteLater();
    QObject::connect(&m_thread, &QThread::finished, m_simulator, &QObject::deleteLater);
    start();
    m_controllerPort = call([](simulator::Simulator &s) { return s.controllerPort(); });
    m_hubPort = call([](simulator::Simulator &s) { return s.hubPort(); });
}

SimulatorFixture::~SimulatorFixture()
{
    m_thread.quit();
    m_thread.wait();
}

QUrl SimulatorFixture::controllerUrl() const
{
    return urlOf(m_controllerPort);
}

quint16 SimulatorFixture::rsyncPort()
{
    return call([](simulator::Simulator &s) { return s.rsyncPort(); });
}

QUrl SimulatorFixture::hubUrl() const
{
    return urlOf(m_hubPort);
}

void SimulatorFixture::stop()
{
    call([](simulator::Simulator &s) { s.stop(); });
}

void SimulatorFixture::start()
{
    QString error;
    if (!call([&error](simulator::Simulator &s) { return s.start(0, 0, &error); }))
        qFatal("the simulator did not start: %s", qPrintable(error));
}

QJsonValue SimulatorFixture::control(const QString &line)
{
    const auto reply = call([&line](simulator::Simulator &s) { return s.control(line); });
    if (reply.isDone())
        return reply.result;
    qWarning("%s: %s", qPrintable(line), qPrintable(reply.reason));
    return QJsonValue(QJsonValue::Undefined);
}

int SimulatorFixture::count(const QString &command)
{
    return call([&command](simulator::Simulator &s) { return s.requests().count(command); });
}

QJsonValue SimulatorFixture::last(const QString &command)
{
    return call([&command](simulator::Simulator &s) { return s.requests().last(command); });
}
