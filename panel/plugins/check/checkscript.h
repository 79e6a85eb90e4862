#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>

/** One step of the check: something to do, and what must then come true. */
struct CheckStep {
    QString title;
    std::function<void()> action = {}; ///< may be empty, and may block
    std::function<bool()> expected = {};
    std::function<QString()> seen = {}; ///< says what was there instead; may be empty
    bool waits = true; ///< false: what is not so after the action will not come true by waiting
};

/**
 * Plays steps one after the other on the panel's event loop and prints a line for each. It stops at
 * the first one whose expectation does not come true in time.
 */
class CheckScript : public QObject
{
    Q_OBJECT

public:
    explicit CheckScript(QObject *parent = nullptr);

    void start(const QList<CheckStep> &steps);

    /** Prints a line of the report. */
    static void report(bool passed, int number, const QString &text);

Q_SIGNALS:
    void finished(bool passed, int steps);

private:
    void enterStep();
    void look();

    QList<CheckStep> m_steps;
    int m_current = 0;
    QTimer m_timer;
    QElapsedTimer m_since;
};
