#include "statefile.h"

#include "keptstate.h"
#include "simulator.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>
#include <cstdio>

namespace simulator
{

namespace
{
/** Nothing where it can't be read. */
std::optional<QByteArray> contentOf(const QString &path, QString *error)
{
    QFile file(path);
    if (!QFileInfo(path).isFile()) // anything else may wait for ever
        *error = QStringLiteral("not a plain file");
    else if (!file.open(QIODevice::ReadOnly))
        *error = file.errorString();
    else if (file.size() > Scenario::kMaxFileSize)
        *error = QStringLiteral("larger than %1 bytes").arg(Scenario::kMaxFileSize);
    else
        return file.readAll();
    return std::nullopt;
}

/** Old ones of that name go: the one before the last is of no use. */
QString putAside(const QString &path)
{
    const QString aside = path + QStringLiteral(".damaged");
    const bool done
        = std::rename(QFile::encodeName(path).constData(), QFile::encodeName(aside).constData())
        == 0;
    return done ? QStringLiteral("it is now %1").arg(aside)
                : QStringLiteral("it could not be renamed to %1").arg(aside);
}
} // namespace

Scenario StateFile::restore(const Scenario &scenario, const QString &path, QString *problem)
{
    if (!QFileInfo::exists(path))
        return scenario;
    QString error;
    const auto text = contentOf(path, &error);
    const auto restored = text ? withState(scenario, *text, &error) : std::nullopt;
    if (restored)
        return *restored;
    *problem = QStringLiteral("%1 is no state of a simulator (%2); %3, and the scenario is used")
                   .arg(path, error, putAside(path));
    return scenario;
}

StateFile::StateFile(Simulator &simulator, const Scenario &scenario, const QString &path,
                     QObject *parent)
    : QObject(parent)
    , m_simulator(simulator)
    , m_path(path)
{
    Simulator untouched(scenario);
    m_base = keptState(untouched);
    m_delay.setSingleShot(true);
    m_delay.setInterval(kDelayMs);
    connect(&m_delay, &QTimer::timeout, this, [this] {
        QString error;
        if (!write(&error))
            emit problem(error);
    });
    follow();
}

StateFile::~StateFile()
{
    QString error;
    if (!write(&error))
        emit problem(error);
}

void StateFile::follow()
{
    const auto on = [this](const auto &source, auto changed) {
        connect(&source, changed, this, &StateFile::writeLater);
    };
    on(m_simulator.robot(), &RobotState::changed);
    on(m_simulator.robot(), &RobotState::parametersChanged);
    on(m_simulator.motion(), &Motion::moved);
    on(m_simulator.frames(), &Frames::changed);
    on(m_simulator.io(), &IoSignals::stateChanged);
    on(m_simulator.io(), &IoSignals::valueChanged);
    on(m_simulator.registers(), &Registers::changed);
    on(m_simulator.variables(), &Variables::changed);
    on(m_simulator.projects(), &Projects::changed);
    on(m_simulator.hub(), &HubData::changed);
}

/** From the first change on: what changes all the time is written all the same. */
void StateFile::writeLater()
{
    if (!m_delay.isActive())
        m_delay.start();
}

bool StateFile::write(QString *error)
{
    const QByteArray text = QJsonDocument(changedState(m_base, keptState(m_simulator))).toJson();
    if (text == m_written)
        return true;
    QDir().mkpath(QFileInfo(m_path).path());
    QSaveFile file(m_path);
    if (text.size() > Scenario::kMaxFileSize)
        *error = QStringLiteral("larger than %1 bytes").arg(Scenario::kMaxFileSize);
    else if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
        m_written = text;
    else
        *error = file.errorString();
    if (m_written == text)
        return true;
    *error = QStringLiteral("%1 cannot be written: %2").arg(m_path, *error);
    return false;
}

} // namespace simulator
