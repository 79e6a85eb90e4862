// The devices around the robot. Shows requests to the controller, values and commands of the
// service hub, a plugin command, watches of both, the link's state, and facades of one's own beside
// InterfaceManager.
#include "celldevices.h"

#include <zeplet/zeplet.h>

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("cell");
const QString doorKey = QStringLiteral("cell.door"); // the hub's
const QString conveyorPath = QStringLiteral("demo.conveyor"); // a notification of the controller
} // namespace

class CellPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit CellPlugin(QObject *parent)
        : PluginBase(parent)
        , m_hub(this)
        , m_devices(this)
        , m_gripper(this)
        , m_controller(this)
    {
        setPluginLabel(QT_TRANSLATE_NOOP("navigation", "My cell"));
    }

    void init() override;
    void detach() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void translate();
    void say(const Sentence &sentence);
    void createButtons(QGridLayout *layout);
    void watch();
    void showLink(const char *text);
    void showDoor(const QString &state);
    void showConveyor(const QVariant &position);
    void tell(bool done, const char *sentence);

    NetworkInterface m_hub;
    CellDevices m_devices;
    Gripper m_gripper;
    CellController m_controller;
    QPointer<QWidget> m_page;
    QLabel *m_link = nullptr;
    QLabel *m_door = nullptr;
    QLabel *m_conveyor = nullptr;
    const char *m_linkText = QT_TR_NOOP("Not connected.");
    QVariant m_position; ///< the conveyor's, in mm; none: it said nothing yet
    QLabel *m_notice = nullptr;
    Sentence m_sentence = [] { return tr("Tap what a device is to do."); };
    QString m_connected; ///< the subscription that tells of the link
};

void CellPlugin::init()
{
    m_page = new QWidget;
    m_page->installEventFilter(this);
    auto *layout = new QGridLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    m_link = new QLabel;
    m_door = new QLabel;
    m_conveyor = new QLabel;
    m_notice = new QLabel;
    m_door->setObjectName("door");
    m_notice->setObjectName("notice");
    m_notice->setTextFormat(Qt::PlainText); // what devices answer is no markup
    m_notice->setWordWrap(true);
    int row = 0;
    for (QLabel *label : {m_link, m_door, m_conveyor})
        layout->addWidget(label, row++, 0, 1, 4);
    layout->addWidget(m_notice, 5, 0, 1, 4, Qt::AlignTop);
    layout->setRowStretch(5, 1);
    createButtons(layout);
    if (zepletInterface()->getRobotConnected())
        m_linkText = QT_TR_NOOP("Connected.");
    translate();
    CreateCenterWidget(pluginName, m_page);
    watch();
}

// The page hears of another language.
bool CellPlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translate();
    return PluginBase::eventFilter(watched, event);
}

void CellPlugin::translate()
{
    for (QPushButton *button : m_page->findChildren<QPushButton *>())
        button->setText(tr(qUtf8Printable(button->objectName()))); // its name is in English
    showLink(m_linkText);
    showDoor(m_hub.get(doorKey).toString()); // what the panel knows, even without a link
    showConveyor(m_position);
    say(m_sentence);
}

void CellPlugin::say(const Sentence &sentence)
{
    m_sentence = sentence;
    m_notice->setText(m_sentence());
}

// Watches live on without their plugin: each id ends its own, and only its own. The last one of a
// key ends the delivery.
void CellPlugin::detach()
{
    zepletInterface()->disconnectNetworkStatus(true, pluginName, m_connected);
    for (const QString &id : zepletEvent()->totalSubscriptionIds(pluginName)) {
        zepletInterface()->disconnectNexoData(pluginName, doorKey, id);
        zepletInterface()->disconnectRcNotify(pluginName, conveyorPath, id);
    }
    delete m_page;
}

void CellPlugin::createButtons(QGridLayout *layout)
{
    const auto addButton = [=](int row, int column, const char *text, const auto &action) {
        auto *button = new QPushButton;
        button->setObjectName(text);
        layout->addWidget(button, 3 + row, column);
        connect(button, &QPushButton::clicked, this, [=] {
            if (zepletInterface()->getRobotConnected())
                action();
            else
                say([] { return tr("Connect the controller first."); });
        });
    };
    addButton(0, 0, QT_TR_NOOP("Lamp on"),
              [this] { tell(m_devices.setLamp(true), QT_TR_NOOP("The lamp is told to light.")); });
    addButton(0, 1, QT_TR_NOOP("Lamp off"), [this] {
        tell(m_devices.setLamp(false), QT_TR_NOOP("The lamp is told to go out."));
    });
    addButton(0, 2, QT_TR_NOOP("Temperature"), [this] { say(m_devices.temperature()); });
    addButton(0, 3, QT_TR_NOOP("Reset devices"),
              [this] { tell(m_devices.reset(), QT_TR_NOOP("The devices are reset.")); });
    addButton(1, 0, QT_TR_NOOP("Grip"), [this] { say(m_gripper.grip(40)); });
    addButton(1, 1, QT_TR_NOOP("Release"), [this] { say(m_gripper.release()); });
    addButton(1, 2, QT_TR_NOOP("Run conveyor"),
              [this] { tell(m_controller.runConveyor(true), QT_TR_NOOP("Asked.")); });
    addButton(1, 3, QT_TR_NOOP("Controller"), [this] { say(m_controller.description()); });
}

void CellPlugin::watch()
{
    InterfaceManager *const robot = zepletInterface();
    robot->connectNexoData(pluginName, doorKey,
                           [this](const QVariant &state) { showDoor(state.toString()); });
    robot->connectRcNotify(pluginName, conveyorPath, [this](const QVariant &value) {
        showConveyor(value.toMap()["position"]);
    });
    m_connected = robot->connectNetworkStatus(true, pluginName, m_page, [this] {
        say(m_controller.description()); // it may be another one
    });
    connect(robot, &InterfaceManager::sigNetworkConnect, m_page,
            [this] { showLink(QT_TR_NOOP("Connected.")); });
    connect(robot, &InterfaceManager::sigNetworkDisConnect, m_page, [this](bool onPurpose) {
        showLink(onPurpose ? QT_TR_NOOP("Disconnected.") : QT_TR_NOOP("The controller is lost."));
    });
}

void CellPlugin::showLink(const char *text)
{
    m_linkText = text;
    m_link->setText(tr(text));
}

void CellPlugin::showDoor(const QString &state)
{
    m_door->setText(state.isEmpty()                        ? tr("The door says nothing yet.")
                        : state == QLatin1String("closed") ? tr("The door is closed.")
                                                           : tr("The door is open."));
}

void CellPlugin::showConveyor(const QVariant &position)
{
    m_position = position;
    m_conveyor->setText(position.isValid() ? tr("The conveyor is at %1 mm.").arg(position.toInt())
                                           : tr("The conveyor says nothing yet."));
}

void CellPlugin::tell(bool done, const char *sentence)
{
    say([=] { return done ? tr(sentence) : tr("That did not work. The log says more."); });
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new CellPlugin(parent); });
    return true;
}();

#include "cellplugin.moc"
