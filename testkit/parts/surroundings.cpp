#include "surroundings.h"

#include "offscreen.h"

#include <QDir>

namespace zeplet
{
namespace test
{

namespace
{

QtMessageHandler nextHandler = nullptr;
bool faultsExpected = false;

/** The panel's own log has categories below "host."; what it warns of while faults are about is
 *  what the test asked for. */
void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (isOffscreenNoise(message))
        return;
    const bool isExpected = faultsExpected && type == QtWarningMsg && context.category
        && QByteArray(context.category).startsWith("host.");
    nextHandler(isExpected ? QtInfoMsg : type, context, message);
}

} // namespace

Surroundings::Surroundings()
    : m_home(QDir::currentPath())
    , m_next(qInstallMessageHandler(handleMessage))
{
    nextHandler = m_next;
    faultsExpected = false;
    setVariable("PATH", qgetenv("PATH")); // a panel puts its stand-ins first
}

Surroundings::~Surroundings()
{
    qInstallMessageHandler(m_next);
    for (auto variable = m_variables.cbegin(); variable != m_variables.cend(); ++variable) {
        if (variable->isNull())
            qunsetenv(variable.key().constData());
        else
            qputenv(variable.key().constData(), *variable);
    }
    QDir::setCurrent(m_home);
}

void Surroundings::setVariable(const char *name, const QByteArray &value)
{
    if (!m_variables.contains(name))
        m_variables.insert(name, qEnvironmentVariableIsSet(name) ? qgetenv(name) : QByteArray());
    qputenv(name, value);
}

void Surroundings::expectFaults()
{
    faultsExpected = true;
}

} // namespace test
} // namespace zeplet
