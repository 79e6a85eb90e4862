#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>

namespace simulator
{

class Simulator;

/** Reads control lines from standard input, has the simulator carry them out and prints each answer
 *  as one line of JSON. */
class Console : public QObject
{
    Q_OBJECT

public:
    explicit Console(Simulator &simulator, QObject *parent = nullptr);

    static void print(const QByteArray &line);
    static void printError(const QString &line);

signals:
    void quitRequested();
    /** Standard input has ended or can't be read. */
    void ended();

private:
    void read();
    void carryOut(const QString &line);

    Simulator &m_simulator;
    QSocketNotifier m_notifier;
    QByteArray m_buffer;
};

} // namespace simulator
