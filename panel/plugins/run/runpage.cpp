#include "runpage.h"

#include "filtercard.h"
#include "statecard.h"

#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <brisa/thememanager.h>
#include <brisa/translated.h>
#include <ostrel/moduleobject.h>
#include <zeplet/interface/interfacemanager.h>

using brisa::Glyph;
using kit::Tone;
using zeplet::zepletInterface;
namespace metrics = brisa::metrics;

namespace
{

constexpr int LowestKey = 10 * metrics::Grid;
constexpr int KeyIcon = 5 * metrics::Grid;
constexpr int StartPatience = 3000; // ms: a controller that starts has said so by then

QString hostText(const char *key)
{
    return zepletInterface()->getNodeData(QLatin1String(key)).toString();
}

bool hostFlag(const char *key)
{
    return zepletInterface()->getNodeData(QLatin1String(key)).toBool();
}

/** The project's name, with the task and the function that run, as far as they are known. */
QString programName()
{
    QStringList parts {zepletInterface()->getCurProject().section(QLatin1Char('/'), 1),
                       hostText("tavik.project.cur_task"), hostText("tavik.project.cur_func")};
    parts.removeAll(QString());
    return parts.isEmpty() ? RunPage::tr("No project is open") : parts.join(QStringLiteral(" › "));
}

QLabel *makeLine(const QString &role, QWidget *parent)
{
    auto *const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setProperty("role", role);
    return label;
}

void drawKey(QPushButton *key, Glyph glyph, const char *role)
{
    const brisa::ThemeColours &colours = brisa::ThemeManager::instance()->colours();
    const QColor line = *role ? colours.onAccent : colours.text;
    QIcon icon(brisa::glyphPixmap(glyph, line, KeyIcon));
    icon.addPixmap(brisa::glyphPixmap(glyph, colours.disabledText, KeyIcon), QIcon::Disabled);
    key->setIcon(icon);
    if (key->property("role").toString() == QLatin1String(role))
        return;
    key->setProperty("role", QString::fromLatin1(role));
    key->style()->unpolish(key);
    key->style()->polish(key);
}

} // namespace

RunPage::RunPage(QWidget *parent)
    : Page(
        pluginName(), [] { return tr("Run"); }, parent)
{
    body()->addWidget(makeCards());
    body()->addWidget(makeKeys(), 1);
    body()->addWidget(makeFilters());
    connect(brisa::ThemeManager::instance(), &brisa::ThemeManager::themeChanged, this,
            &RunPage::drawKeys);
    m_second.setInterval(1000);
    connect(&m_second, &QTimer::timeout, this, &RunPage::refreshSoon);
    m_startCheck.setSingleShot(true);
    connect(&m_startCheck, &QTimer::timeout, this, &RunPage::checkStart);
    follow({QStringLiteral("brisa.r.state"), QStringLiteral("brisa.r.power"),
            QStringLiteral("brisa.r.mode"), QStringLiteral("brisa.r.zeplet.waiting"),
            QStringLiteral("brisa.r.zeplet.filter.run"),
            QStringLiteral("brisa.r.zeplet.filter.stop"),
            QStringLiteral("tavik.project.cur_project"), QStringLiteral("tavik.project.cur_task"),
            QStringLiteral("tavik.project.cur_func")});
}

QString RunPage::pluginName()
{
    return QStringLiteral("page-run");
}

QWidget *RunPage::makeCards()
{
    auto *const cards = new QWidget(this);
    auto *const row = new QHBoxLayout(cards);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::Margin);
    m_program = new StateCard([] { return tr("Program"); }, QString(), cards);
    m_mode
        = new StateCard([] { return tr("Operating mode"); }, QStringLiteral("switchMode"), cards);
    m_power = new StateCard([] { return tr("Motors"); }, QStringLiteral("switchPower"), cards);
    for (StateCard *const card : {m_program, m_mode, m_power})
        row->addWidget(card, 1);
    connect(m_mode, &StateCard::tapped, this, &RunPage::switchMode);
    connect(m_power, &StateCard::tapped, this, &RunPage::switchPower);
    return cards;
}

QWidget *RunPage::makeKeys()
{
    auto *const keys = new QWidget(this);
    auto *const column = new QVBoxLayout(keys);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::Grid);
    auto *const row = new QHBoxLayout;
    row->setSpacing(metrics::Margin);
    m_start = new QPushButton(keys);
    brisa::translated(m_start, [this] { m_start->setText(tr("  Start")); });
    m_start->setObjectName(QStringLiteral("runStart"));
    m_stop = new QPushButton(keys);
    m_stop->setObjectName(QStringLiteral("runStop"));
    for (QPushButton *const key : {m_start, m_stop}) {
        key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        // The host's style sheet has heights of its own for buttons.
        key->setStyleSheet(QStringLiteral("min-height: %1px; font-size: 24px;").arg(LowestKey));
        key->setFont(brisa::ThemeManager::font(brisa::TextSize::Heading, true));
        key->setIconSize({KeyIcon, KeyIcon});
        key->setFocusPolicy(Qt::NoFocus); // no space bar starts a robot
        row->addWidget(key, 1);
    }
    m_reason = makeLine(QStringLiteral("muted"), keys);
    m_reason->setObjectName(QStringLiteral("startReason"));
    m_reason->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    column->addLayout(row, 1);
    column->addWidget(m_reason);
    connect(m_start, &QPushButton::clicked, this, &RunPage::start);
    connect(m_stop, &QPushButton::clicked, this, [this] { request(QStringLiteral("stop")); });
    return keys;
}

QWidget *RunPage::makeFilters()
{
    auto *const row = new QWidget(this);
    auto *const cards = new QHBoxLayout(row);
    cards->setContentsMargins(0, 0, 0, 0);
    cards->setSpacing(metrics::Margin);
    m_startFilter = new FilterCard([] { return tr("Start filter"); }, row);
    m_stopFilter = new FilterCard([] { return tr("Stop filter"); }, row);
    cards->addWidget(m_startFilter, 1);
    cards->addWidget(m_stopFilter, 1);
    return row;
}

// Colour only where there is something to do: a start that can be had, a program to be stopped.
void RunPage::drawKeys()
{
    drawKey(m_start, Glyph::Play, m_start->isEnabled() ? "primary" : "");
    drawKey(m_stop, Glyph::Stop, isRunning() || waiting() != ForNothing ? "danger" : "");
}

void RunPage::refresh()
{
    const bool live = zepletInterface()->getRobotConnected();
    setSubtitle(live ? programName() : tr("No link to the controller"));
    refreshProgram(live);
    refreshMode(live);
    refreshPower(live);
    refreshKeys(live);
    const bool startFilter = hostFlag("brisa.r.zeplet.filter.run");
    const bool stopFilter = hostFlag("brisa.r.zeplet.filter.stop");
    m_startFilter->setState(startFilter,
                            startFilter ? tr("A plugin has to agree to each start")
                                        : tr("No plugin holds back a start"));
    m_stopFilter->setState(stopFilter,
                           stopFilter ? tr("A plugin has its say before each stop")
                                      : tr("No plugin holds back a stop"));
}

void RunPage::refreshProgram(bool live)
{
    const bool waits = live && waiting() != ForNothing;
    if (!waits) {
        m_waitingSince.invalidate();
        m_second.stop();
    }
    if (isRunning())
        m_startCheck.stop();
    if (!live)
        m_program->setState(Glyph::Stop, Tone::Muted, tr("Unknown"), tr("The robot may be moving"));
    else if (waits)
        showWaiting();
    else if (isRunning())
        m_program->setState(Glyph::Play, Tone::Ok, tr("Running"), tr("Keep clear of the robot"));
    else
        m_program->setState(Glyph::Stop, Tone::Muted, tr("Stopped"), tr("No program is running"));
}

// The panel's own strip offers to cancel it; this tells for how long it lasts already.
void RunPage::showWaiting()
{
    if (!m_waitingSince.isValid())
        m_waitingSince.start();
    m_second.start();
    const QString seconds = QString::number(m_waitingSince.elapsed() / 1000);
    if (waiting() == ForStart)
        m_program->setState(Glyph::Cycle, Tone::Accent, tr("Starting"),
                            tr("A plugin has to agree: %1 s").arg(seconds));
    else
        m_program->setState(Glyph::Cycle, Tone::Warning, tr("Stopping"),
                            tr("It runs until a plugin agrees: %1 s").arg(seconds));
}

void RunPage::refreshMode(bool live)
{
    const bool manual = zepletInterface()->getRobotOperateIsHand();
    if (!live)
        m_mode->setState(Glyph::Hand, Tone::Muted, tr("Unknown"), tr("No link to the controller"));
    else if (manual)
        m_mode->setState(Glyph::Hand, Tone::Accent, tr("Manual"), tr("By hand, at low speed"));
    else
        m_mode->setState(Glyph::Cycle, Tone::Accent, tr("Automatic"),
                         tr("Programs run at full speed"));
    m_mode->setButton(manual ? tr("Go automatic") : tr("Go manual"), live && !isRunning());
}

void RunPage::refreshPower(bool live)
{
    const bool on = zepletInterface()->getRobotEleStatus();
    if (!live)
        m_power->setState(Glyph::Power, Tone::Muted, tr("Unknown"),
                          tr("No link to the controller"));
    else if (on)
        m_power->setState(Glyph::Power, Tone::Warning, tr("On"), tr("The robot can move"));
    else
        m_power->setState(Glyph::Power, Tone::Muted, tr("Off"), tr("The robot stands still"));
    m_power->setButton(on ? tr("Switch off") : tr("Switch on"), live);
}

void RunPage::refreshKeys(bool live)
{
    QString reason;
    if (!live)
        reason
            = tr("Nothing can be started or stopped here until the controller is connected. If the "
                 "robot moves, use the emergency stop.");
    else if (waiting() == ForStop)
        reason = tr("A second stop does not wait for the plugin.");
    else if (waiting() == ForStart)
        reason = tr("Stop takes the start back as well.");
    else if (isRunning())
        reason = tr("The program is running.");
    else if (!zepletInterface()->getRobotEleStatus())
        reason = tr("The motors are off: switch them on before the program is started.");
    m_reason->setText(reason);
    m_start->setEnabled(live && reason.isEmpty());
    m_stop->setEnabled(live);
    m_stop->setText(live && waiting() == ForStop ? tr("  Stop now") : tr("  Stop"));
    drawKeys();
}

/** The host carries it out, with the plugins' filters, and resets the key. */
void RunPage::request(const QString &what)
{
    say(Tone::Plain, QString());
    m_startCheck.stop();
    m(QStringLiteral("brisa.r.operator"))->set(this, what);
}

void RunPage::start()
{
    request(QStringLiteral("start"));
    m_startCheck.start(StartPatience);
}

void RunPage::checkStart()
{
    if (isRunning() || waiting() != ForNothing)
        return;
    say(Tone::Warning,
        tr("The program has not started: the message at the bottom of the panel says why, if the "
           "controller refused. Put that right and start again."));
}

void RunPage::switchMode()
{
    const bool manual = !zepletInterface()->getRobotOperateIsHand();
    work(tr("Switching the operating mode"), [this, manual] {
        if (!zepletInterface()->changeRobotModelStatue(manual, true))
            say(Tone::Error,
                tr("The controller did not change the mode: its mode switch or a running program "
                   "may hold it. Check both and try again."));
    });
}

void RunPage::switchPower()
{
    const bool on = !zepletInterface()->getRobotEleStatus();
    work(on ? tr("Switching the motors on") : tr("Switching the motors off"), [this, on] {
        if (!zepletInterface()->changeRobotPowerStatue(on, true))
            say(Tone::Error,
                tr("The controller did not switch the motors: an emergency stop or an open door "
                   "may hold them. Check both and try again."));
    });
}

RunPage::Waiting RunPage::waiting() const
{
    const QString what = hostText("brisa.r.zeplet.waiting");
    if (what == QLatin1String("run"))
        return ForStart;
    return what == QLatin1String("stop") ? ForStop : ForNothing;
}

bool RunPage::isRunning() const
{
    return zepletInterface()->getRobotPhyStatus() == QLatin1String("program");
}
