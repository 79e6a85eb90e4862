#pragma once

#include "kit/page.h"

#include <QElapsedTimer>

class QLabel;
class FilterCard;
class StateCard;

/** Whether the program runs or waits for a plugin's filter, in which mode and with which power, and
 *  the operator's keys for it, with the reason where one can't be used. */
class RunPage : public kit::Page
{
    Q_OBJECT

public:
    explicit RunPage(QWidget *parent = nullptr);

    static QString pluginName();

protected:
    void refresh() override;

private:
    enum Waiting { ForNothing, ForStart, ForStop };

    QWidget *makeCards();
    QWidget *makeKeys();
    QWidget *makeFilters();
    void drawKeys();
    void refreshProgram(bool live);
    void showWaiting();
    void refreshMode(bool live);
    void refreshPower(bool live);
    void refreshKeys(bool live);
    void request(const QString &what);
    void start();
    void checkStart();
    void switchMode();
    void switchPower();
    Waiting waiting() const;
    bool isRunning() const;

    StateCard *m_program = nullptr;
    StateCard *m_mode = nullptr;
    StateCard *m_power = nullptr;
    QPushButton *m_start = nullptr;
    QPushButton *m_stop = nullptr;
    QLabel *m_reason = nullptr;
    FilterCard *m_startFilter = nullptr;
    FilterCard *m_stopFilter = nullptr;
    QElapsedTimer m_waitingSince;
    QTimer m_second;
    QTimer m_startCheck;
};
