// What the robot is and does, its motors and mode, and a question before each start or stop of the
// operator. Shows the status readers, the switches, startRunning() and stopRunning() with their
// filters, and subscriptions that end with the page.
#include <zeplet/zeplet.h>

#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("status");
}

class StatusPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit StatusPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(QT_TRANSLATE_NOOP("navigation", "Robot status"));
    }

    void init() override;
    void detach() override;

private:
    void createButtons();
    void addButton(int row, int column, const QString &text, const std::function<bool()> &action);
    void addFilter(int column, const QString &text, bool (InterfaceManager::*filter)(bool));
    void refresh();

    QPointer<QWidget> m_page;
    QFormLayout *m_facts = nullptr;
    QGridLayout *m_buttons = nullptr;
    QLabel *m_notice = nullptr;
};

void StatusPlugin::init()
{
    m_page = new QWidget;
    auto *title = new QLabel(tr("Robot status"));
    title->setProperty("role", "heading");
    auto *card = new QFrame;
    card->setProperty("role", "card");
    m_facts = new QFormLayout(card);
    m_facts->setContentsMargins(24, 16, 24, 16);
    m_facts->setHorizontalSpacing(48);
    m_buttons = new QGridLayout;
    m_notice = new QLabel(tr("Changes appear here as the controller reports them."));
    auto *layout = new QVBoxLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    layout->addWidget(title);
    layout->addWidget(card);
    layout->addLayout(m_buttons);
    layout->addWidget(m_notice);
    layout->addStretch();
    createButtons();
    refresh();
    CreateCenterWidget(pluginName, m_page);

    // With the page as their context, subscriptions end when it goes.
    for (ZepletEventType type : {NetworkConnected, NetworkDisconnected, RCPowerStatusChange,
                                 RCRunModelChange, RCRunStart, RCRunStop})
        zepletEvent()->subscribe(
            type, [this](auto &) { refresh(); }, pluginName, m_page);
    const QString question = tr("The operator wants to start. If the cell is clear, tap Start.");
    zepletEvent()->subscribe(
        RCBeforeRunStart, [=](auto &) { m_notice->setText(question); }, pluginName, m_page);
    const QString wish = tr("The operator wants to stop. When the part is finished, tap Stop.");
    zepletEvent()->subscribe(
        RCBeforeRunStop, [=](auto &) { m_notice->setText(wish); }, pluginName, m_page);
}

// No start and no stop may wait for the answer of a plugin that is gone.
void StatusPlugin::detach()
{
    if (m_page) {
        for (QPushButton *filter : m_page->findChildren<QPushButton *>("filter"))
            filter->setChecked(false);
    }
    delete m_page;
}

void StatusPlugin::createButtons()
{
    InterfaceManager *const robot = zepletInterface();
    addButton(0, 0, tr("Motors on"), [=] { return robot->changeRobotPowerStatue(true, false); });
    addButton(0, 1, tr("Motors off"), [=] { return robot->changeRobotPowerStatue(false, false); });
    addButton(0, 2, tr("Manual"), [=] { return robot->changeRobotModelStatue(true, false); });
    addButton(0, 3, tr("Automatic"), [=] { return robot->changeRobotModelStatue(false, false); });
    addButton(1, 0, tr("Start"), [=] { return robot->startRunning(); });
    addButton(1, 1, tr("Stop"), [=] { return robot->stopRunning(); });
    addFilter(2, tr("Ask before a start"), &InterfaceManager::startRunningFilter);
    addFilter(3, tr("Ask before a stop"), &InterfaceManager::stopRunningFilter);
}

void StatusPlugin::addFilter(int column, const QString &text,
                             bool (InterfaceManager::*filter)(bool))
{
    auto *button = new QPushButton(text);
    button->setObjectName("filter");
    button->setCheckable(true);
    m_buttons->addWidget(button, 1, column);
    connect(button, &QPushButton::toggled, this,
            [=](bool on) { (zepletInterface()->*filter)(on); });
}

// No action waits: the state tells whether and when the robot did as it was asked.
void StatusPlugin::addButton(int row, int column, const QString &text,
                             const std::function<bool()> &action)
{
    auto *button = new QPushButton(text);
    m_buttons->addWidget(button, row, column);
    connect(button, &QPushButton::clicked, this, [=] {
        m_notice->setText(
            action() ? tr("%1: sent. The state above follows when the robot has done it.").arg(text)
                     : tr("%1: not sent. Connect the controller, then try again.").arg(text));
    });
}

void StatusPlugin::refresh()
{
    InterfaceManager *const robot = zepletInterface();
    while (m_facts->rowCount() > 0)
        m_facts->removeRow(0);
    const auto add = [this](const QString &fact, const QString &text) {
        auto *label = new QLabel(text);
        label->setTextFormat(Qt::PlainText); // what comes from outside is no markup
        m_facts->addRow(fact, label);
    };
    add(tr("Controller"), robot->getRobotConnected() ? robot->getRobotIP() : tr("not connected"));
    add(tr("Identity"), robot->getRobotID());
    add(tr("Robot"), robot->getRobotType());
    add(tr("Model"), QString::number(robot->getRobotModelType()));
    add(tr("Motors"), robot->getRobotEleStatus() ? tr("on") : tr("off"));
    add(tr("Mode"), robot->getRobotOperateIsHand() ? tr("manual") : tr("automatic"));
    add(tr("Program"), robot->getRobotPhyStatus());
    add(tr("User level"), QString::number(robot->getUserOperateLevel()));
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new StatusPlugin(parent); });
    return true;
}();

#include "statusplugin.moc"
