#pragma once

#include "kit/page.h"
#include "signallist.h"

class QLineEdit;
class QStackedWidget;
class QTabBar;

namespace kit
{
class Table;
}

/** The controller's signals by type with their lamps and values, and its registers. Outputs are set
 *  here, and inputs while they are simulated. */
class SignalsPage : public kit::Page
{
    Q_OBJECT

public:
    explicit SignalsPage(QWidget *parent = nullptr);

    static QString pluginName();

protected:
    void refresh() override;

private:
    void buildSelection();
    void buildTables();
    bool showsRegisters() const;
    SignalType type() const;
    void refreshTabs();
    void refreshSignals();
    void refreshRegisters();
    void refreshSimulation();
    void tap(const QString &name);
    void setDigital(const Signal &signal);
    void askForNumber(const Signal &signal);
    void toggleSimulation();
    void simulate(bool on);

    QVector<Signal> m_signals;
    QTabBar *m_tabs = nullptr;
    QLineEdit *m_search = nullptr;
    QStackedWidget *m_stack = nullptr;
    kit::Table *m_table = nullptr;
    kit::Table *m_registers = nullptr;
    kit::NoticeLine *m_simulated;
    QPushButton *m_simulation;
};
