#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

namespace zeplet
{
namespace test
{

/** What a panel changes in its process and a test finds again afterwards: the current directory,
 *  the environment, and the message handler. Its destructor puts them back. */
class Surroundings
{
public:
    Surroundings();
    ~Surroundings();
    Q_DISABLE_COPY(Surroundings)

    void setVariable(const char *name, const QByteArray &value);
    /** Where the test was started. */
    const QString &home() const { return m_home; }
    /** Warnings of the host's log are information from now on: a fault was asked for. */
    static void expectFaults();

private:
    const QString m_home;
    QMap<QByteArray, QByteArray> m_variables; ///< as they were; null: not set
    QtMessageHandler m_next;
};

} // namespace test
} // namespace zeplet
