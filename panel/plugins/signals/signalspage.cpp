#include "signalspage.h"

#include "kit/form.h"
#include "kit/noticeline.h"
#include "kit/table.h"

#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>
#include <brisa/translated.h>
#include <cmath>
#include <zeplet/interface/interfacemanager.h>

using kit::Lamp;
using kit::Tone;
using zeplet::zepletInterface;

namespace
{

constexpr int SearchWidth = 180;
constexpr int ValueWidth = 130;
constexpr int ButtonWidth = 140;
constexpr int MarkWidth = 220;
constexpr int WriteTimeout = 4800; // ms

QString numberText(const QJsonValue &value)
{
    return value.isDouble() ? QLocale::c().toString(value.toDouble(), 'g', 10)
                            : QStringLiteral("–");
}

kit::Cell valueCell(const Signal &signal, SignalType type, bool live)
{
    kit::Cell cell;
    if (!isDigital(type)) {
        cell.text = live ? numberText(signal.value) : QStringLiteral("–");
        return cell;
    }
    const bool known = live && signal.value.isBool();
    const bool on = signal.value.toBool();
    cell.lamp = !known ? Lamp::Unknown : on ? Lamp::On : Lamp::Off;
    cell.text = !known ? QStringLiteral("–") : on ? SignalsPage::tr("On") : SignalsPage::tr("Off");
    cell.tone = known && on ? Tone::Ok : Tone::Muted;
    return cell;
}

/** The button's text is empty where the signal can't be set now. */
kit::Cell buttonCell(const Signal &signal, SignalType type, bool settable)
{
    kit::Cell cell;
    cell.button = true;
    if (!settable || signal.isSystem)
        return cell;
    if (!isDigital(type))
        cell.text = SignalsPage::tr("Set …");
    else
        cell.text
            = signal.value.toBool() ? SignalsPage::tr("Switch off") : SignalsPage::tr("Switch on");
    return cell;
}

kit::Row rowOf(const Signal &signal, SignalType type, bool live, bool settable)
{
    kit::Cell name;
    name.text = signal.name;
    name.hint = signal.label;
    kit::Cell use;
    if (signal.isSystem)
        use.marks.append({signal.systemFunction.isEmpty()
                              ? SignalsPage::tr("System")
                              : SignalsPage::tr("System: %1").arg(signal.systemFunction),
                          Tone::Accent});
    return {signal.name,
            {name, valueCell(signal, type, live), use, buttonCell(signal, type, settable)}};
}

/** What is wrong with a number for such a signal; empty where nothing is. */
QString refusalOf(const QString &text, SignalType type)
{
    bool isNumber = false;
    const double number = QLocale::c().toDouble(text.trimmed(), &isNumber);
    if (!isNumber || !std::isfinite(number))
        return SignalsPage::tr("A number is needed, with a point before its decimals: 12.5");
    if (isGroup(type) && (number < 0 || number != std::floor(number)))
        return SignalsPage::tr("A group of bits takes whole numbers from 0 on.");
    return QString();
}

bool fits(const QString &text, const QString &search)
{
    return text.contains(search, Qt::CaseInsensitive);
}

} // namespace

SignalsPage::SignalsPage(QWidget *parent)
    : Page(
        pluginName(), [] { return tr("Signals"); }, parent)
    , m_simulated(new kit::NoticeLine(kit::NoticeLine::Kept, this))
    , m_simulation(nullptr)
{
    buildSelection();
    m_simulation
        = addButton([] { return tr("Simulate inputs"); }, QStringLiteral("simulateInputs"));
    connect(m_simulation, &QPushButton::clicked, this, &SignalsPage::toggleSimulation);
    body()->insertWidget(0, m_simulated);
    buildTables();
    follow({QStringLiteral("tavik.robot.io"), QStringLiteral("tavik.robot.io.signal_detail"),
            QStringLiteral("tavik.robot.io.values"),
            QStringLiteral("tavik.robot.io.input_simu_mode"),
            QStringLiteral("tavik.robot.sysytem_io"),
            QStringLiteral("tavik.robot.sysytem_io.input_system_io"),
            QStringLiteral("tavik.robot.sysytem_io.output_system_io"),
            QStringLiteral("tavik.robot.register._list")});
}

QString SignalsPage::pluginName()
{
    return QStringLiteral("page-signals");
}

void SignalsPage::buildSelection()
{
    m_tabs = new QTabBar(this);
    m_tabs->setObjectName(QStringLiteral("signalTypes"));
    m_tabs->setExpanding(false);
    m_tabs->setDrawBase(false);
    for (int i = 1; i <= SignalTypes; ++i)
        m_tabs->addTab(shortName(static_cast<SignalType>(i)));
    m_tabs->addTab(QString());
    brisa::translated(m_tabs, [this] {
        for (int i = 1; i <= SignalTypes; ++i)
            m_tabs->setTabToolTip(i - 1, longName(static_cast<SignalType>(i)));
        m_tabs->setTabText(SignalTypes, tr("Registers"));
    });
    body()->addWidget(m_tabs);
    m_search = new QLineEdit(this);
    m_search->setObjectName(QStringLiteral("signalSearch"));
    brisa::translated(m_search, [this] { m_search->setPlaceholderText(tr("Find")); });
    m_search->setFixedWidth(SearchWidth);
    addToHeader(m_search);
    connect(m_tabs, &QTabBar::currentChanged, this, [this] { refresh(); });
    connect(m_search, &QLineEdit::textChanged, this, [this] { refresh(); });
}

void SignalsPage::buildTables()
{
    m_table = new kit::Table(
        [] {
            return QStringList {tr("Signal"), tr("Value"), tr("Use"), QString()};
        },
        this);
    m_table->setObjectName(QStringLiteral("signals"));
    m_table->setWidths({0, ValueWidth, -MarkWidth, ButtonWidth});
    m_table->setSelectionMode(QAbstractItemView::NoSelection);
    connect(m_table, &kit::Table::buttonTapped, this, &SignalsPage::tap);
    m_registers = new kit::Table([] { return QStringList {tr("Register"), tr("Values")}; }, this);
    m_registers->setObjectName(QStringLiteral("registers"));
    m_registers->setSelectionMode(QAbstractItemView::NoSelection);
    m_registers->setWidths({0, 0});
    m_stack = new QStackedWidget(this);
    m_stack->addWidget(m_table);
    m_stack->addWidget(m_registers);
    body()->addWidget(m_stack, 1);
}

bool SignalsPage::showsRegisters() const
{
    return m_tabs->currentIndex() == SignalTypes;
}

SignalType SignalsPage::type() const
{
    return static_cast<SignalType>(qMin(m_tabs->currentIndex(), SignalTypes - 1) + 1);
}

void SignalsPage::refresh()
{
    refreshTabs();
    refreshSimulation();
    if (showsRegisters())
        refreshRegisters();
    else
        refreshSignals();
}

void SignalsPage::refreshTabs()
{
    for (int i = 0; i < SignalTypes; ++i) {
        const auto type = static_cast<SignalType>(i + 1);
        m_tabs->setTabText(
            i, shortName(type) + QLatin1Char(' ') + QString::number(countSignals(type)));
    }
    m_stack->setCurrentWidget(showsRegisters() ? m_registers : m_table);
}

void SignalsPage::refreshSignals()
{
    const bool live = zepletInterface()->getRobotConnected();
    const bool settable = live && (!isInput(type()) || areInputsSimulated());
    m_signals = readSignals(type());
    QVector<kit::Row> rows;
    for (const Signal &signal : qAsConst(m_signals)) {
        if (fits(signal.name, m_search->text()) || fits(signal.label, m_search->text()))
            rows.append(rowOf(signal, type(), live, settable));
    }
    m_table->setRows(rows);
    if (!m_signals.isEmpty())
        m_table->setEmptyState(brisa::Glyph::Lamp, tr("No signal fits"),
                               tr("Neither a name nor a label has these letters."));
    else
        m_table->setEmptyState(brisa::Glyph::Lamp, tr("No signals of this type"),
                               live ? tr("The controller has none.")
                                    : tr("They appear when the controller is connected."));
    setSubtitle(
        live ? longName(type())
             : tr("%1: no link to the controller, values are not known").arg(longName(type())));
}

void SignalsPage::refreshRegisters()
{
    const QJsonArray registers = zepletInterface()->getRegisterValue().toArray();
    const bool live = zepletInterface()->getRobotConnected();
    QVector<kit::Row> rows;
    for (const QJsonValue &entry : registers) {
        kit::Cell name;
        name.text = entry[QLatin1String("name")].toString();
        kit::Cell values;
        const QStringList texts = entry[QLatin1String("value")].toVariant().toStringList();
        values.text = live ? texts.join(QStringLiteral(",  ")) : QStringLiteral("–");
        if (fits(name.text, m_search->text()))
            rows.append({name.text, {name, values}});
    }
    m_registers->setRows(rows);
    m_registers->setEmptyState(brisa::Glyph::List,
                               registers.isEmpty() ? tr("No registers") : tr("No register fits"),
                               live ? tr("The controller has none that are shown here.")
                                    : tr("They appear when the controller is connected."));
    setSubtitle(live ? tr("Registers: what the robot shares with other controllers")
                     : tr("Registers: no link to the controller, values are not known"));
}

void SignalsPage::refreshSimulation()
{
    const bool live = zepletInterface()->getRobotConnected();
    const bool simulated = areInputsSimulated();
    m_simulation->setEnabled(live);
    m_simulation->setText(live && simulated ? tr("End simulation") : tr("Simulate inputs"));
    m_simulated->say(Tone::Warning,
                     live && simulated ? tr("Inputs are simulated: programs do not see the real "
                                            "cell. They can be set in this table.")
                                       : QString());
}

void SignalsPage::tap(const QString &name)
{
    for (const Signal &signal : qAsConst(m_signals)) {
        if (signal.name != name)
            continue;
        if (isDigital(type()))
            setDigital(signal);
        else
            askForNumber(signal);
        return;
    }
}

// The table follows when the controller reports the new value; a refusal comes into the banner.
void SignalsPage::setDigital(const Signal &signal)
{
    zepletInterface()->setIOValue(signal.name, static_cast<int>(type()), !signal.value.toBool());
}

void SignalsPage::askForNumber(const Signal &signal)
{
    auto *const form
        = new kit::Form(this, tr("Set %1").arg(kit::shortened(signal.name)), tr("Set"));
    QLineEdit *const number
        = form->addText(signal.label.isEmpty() ? tr("Value") : signal.label,
                        QStringLiteral("signalValue"), numberText(signal.value));
    number->selectAll();
    const SignalType kind = type();
    form->setValidation([number, kind] { return refusalOf(number->text(), kind); });
    form->onAccepted([name = signal.name, number] {
        const double value = QLocale::c().toDouble(number->text().trimmed());
        const QJsonObject values {{name, value}};
        zepletInterface()->rcRequest(QStringLiteral("io"),
                                     QStringLiteral("io_signal.set_signal_value"),
                                     QJsonObject {{"signal_value", values}}, WriteTimeout);
    });
    form->open();
}

void SignalsPage::toggleSimulation()
{
    if (areInputsSimulated())
        return simulate(false);
    confirm(tr("Simulate the inputs?"),
            tr("Programs then see the values that are set here, not those of the cell. Nobody "
               "notices a real button or sensor until the simulation ends."),
            tr("Simulate"), [this] { simulate(true); });
}

void SignalsPage::simulate(bool on)
{
    const bool sent = zepletInterface()->rcRequest(QStringLiteral("io"),
                                                   QStringLiteral("io_signal.set_input_simu_mode"),
                                                   QJsonObject {{"on", on}}, WriteTimeout);
    if (!sent)
        say(Tone::Error,
            tr("The controller could not be asked: wait until it is connected and try again."));
}
