// What the robot is and does, its motors and mode, and a question before each start or stop of the
// operator. Shows the status readers, the switches, startRunning() and stopRunning() with their
// filters, subscriptions that end with the page, and texts that follow the panel's language.
#include <zeplet/zeplet.h>

#include <QEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <functional>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("status");
using Sentence = std::function<QString()>; // to be said again in another language
} // namespace

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
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void translate();
    void say(const Sentence &sentence);
    void createButtons();
    QPushButton *addText(int row, int column, const char *text);
    void addButton(int row, int column, const char *text, const std::function<bool()> &action);
    void addFilter(int column, const char *text, bool (InterfaceManager::*filter)(bool));
    void refresh();

    QPointer<QWidget> m_page;
    QFormLayout *m_facts = nullptr;
    QGridLayout *m_buttons = nullptr;
    QLabel *m_title = nullptr;
    QLabel *m_notice = nullptr;
    Sentence m_sentence = [] { return tr("Changes appear here as the controller reports them."); };
};

void StatusPlugin::init()
{
    m_page = new QWidget;
    m_page->installEventFilter(this);
    m_title = new QLabel;
    m_title->setProperty("role", "heading");
    auto *card = new QFrame;
    card->setProperty("role", "card");
    m_facts = new QFormLayout(card);
    m_facts->setContentsMargins(24, 16, 24, 16);
    m_facts->setHorizontalSpacing(48);
    m_buttons = new QGridLayout;
    m_notice = new QLabel;
    auto *layout = new QVBoxLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    layout->addWidget(m_title);
    layout->addWidget(card);
    layout->addLayout(m_buttons);
    layout->addWidget(m_notice);
    layout->addStretch();
    createButtons();
    translate();
    CreateCenterWidget(pluginName, m_page);

    // With the page as their context, subscriptions end when it goes.
    for (ZepletEventType type : {NetworkConnected, NetworkDisconnected, RCPowerStatusChange,
                                 RCRunModelChange, RCRunStart, RCRunStop})
        zepletEvent()->subscribe(
            type, [this](auto &) { refresh(); }, pluginName, m_page);
    const auto tell = [this](ZepletEventType type, const char *text) {
        zepletEvent()->subscribe(
            type, [=](auto &) { say([=] { return tr(text); }); }, pluginName, m_page);
    };
    tell(RCBeforeRunStart,
         QT_TR_NOOP("The operator wants to start. If the cell is clear, tap Start."));
    tell(RCBeforeRunStop,
         QT_TR_NOOP("The operator wants to stop. When the part is finished, tap Stop."));
}

// The page hears of another language.
bool StatusPlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translate();
    return PluginBase::eventFilter(watched, event);
}

void StatusPlugin::translate()
{
    m_title->setText(tr("Robot status"));
    for (QPushButton *button : m_page->findChildren<QPushButton *>())
        button->setText(tr(qUtf8Printable(button->objectName()))); // its name is in English
    say(m_sentence);
    refresh();
}

void StatusPlugin::say(const Sentence &sentence)
{
    m_sentence = sentence;
    m_notice->setText(m_sentence());
}

// No start and no stop may wait for the answer of a plugin that is gone.
void StatusPlugin::detach()
{
    if (m_page) {
        for (QPushButton *button : m_page->findChildren<QPushButton *>())
            button->setChecked(false); // filters alone can be checked
    }
    delete m_page;
}

void StatusPlugin::createButtons()
{
    InterfaceManager *const robot = zepletInterface();
    addButton(0, 0, QT_TR_NOOP("Motors on"),
              [=] { return robot->changeRobotPowerStatue(true, false); });
    addButton(0, 1, QT_TR_NOOP("Motors off"),
              [=] { return robot->changeRobotPowerStatue(false, false); });
    addButton(0, 2, QT_TR_NOOP("Manual"),
              [=] { return robot->changeRobotModelStatue(true, false); });
    addButton(0, 3, QT_TR_NOOP("Automatic"),
              [=] { return robot->changeRobotModelStatue(false, false); });
    addButton(1, 0, QT_TR_NOOP("Start"), [=] { return robot->startRunning(); });
    addButton(1, 1, QT_TR_NOOP("Stop"), [=] { return robot->stopRunning(); });
    addFilter(2, QT_TR_NOOP("Ask before a start"), &InterfaceManager::startRunningFilter);
    addFilter(3, QT_TR_NOOP("Ask before a stop"), &InterfaceManager::stopRunningFilter);
}

QPushButton *StatusPlugin::addText(int row, int column, const char *text)
{
    auto *button = new QPushButton;
    button->setObjectName(text);
    m_buttons->addWidget(button, row, column);
    return button;
}

void StatusPlugin::addFilter(int column, const char *text, bool (InterfaceManager::*filter)(bool))
{
    QPushButton *const button = addText(1, column, text);
    button->setCheckable(true);
    connect(button, &QPushButton::toggled, this,
            [=](bool on) { (zepletInterface()->*filter)(on); });
}

// No action waits: the state tells whether and when the robot did as it was asked.
void StatusPlugin::addButton(int row, int column, const char *text,
                             const std::function<bool()> &action)
{
    connect(addText(row, column, text), &QPushButton::clicked, this, [=] {
        const bool sent = action();
        say([=] {
            return (sent ? tr("%1: sent. The state above follows when the robot has done it.")
                         : tr("%1: not sent. Connect the controller, then try again."))
                .arg(tr(text));
        });
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
