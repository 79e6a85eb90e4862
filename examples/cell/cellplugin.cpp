// The devices around the robot. Shows requests to the controller, values and commands of the
// service hub, a plugin command, watches of both, the link's state, and facades of one's own beside
// InterfaceManager.
#include "celldevices.h"

#include <zeplet/zeplet.h>

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

private:
    void createButtons(QGridLayout *layout);
    void watch();
    void showDoor(const QString &state);
    void say(bool done, const QString &sentence);

    NetworkInterface m_hub;
    CellDevices m_devices;
    Gripper m_gripper;
    CellController m_controller;
    QPointer<QWidget> m_page;
    QLabel *m_link = nullptr;
    QLabel *m_door = nullptr;
    QLabel *m_conveyor = nullptr;
    QLabel *m_notice = nullptr;
    QString m_connected; ///< the subscription that tells of the link
};

void CellPlugin::init()
{
    m_page = new QWidget;
    auto *layout = new QGridLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    m_link = new QLabel(zepletInterface()->getRobotConnected() ? tr("Connected.")
                                                               : tr("Not connected."));
    m_door = new QLabel;
    m_conveyor = new QLabel(tr("The conveyor says nothing yet."));
    m_notice = new QLabel(tr("Tap what a device is to do."));
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
    CreateCenterWidget(pluginName, m_page);
    showDoor(m_hub.get(doorKey).toString()); // what the panel knows, even without a link
    watch();
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
    const auto addButton = [=](int row, int column, const QString &text, const auto &action) {
        auto *button = new QPushButton(text);
        layout->addWidget(button, 3 + row, column);
        connect(button, &QPushButton::clicked, this, [=] {
            if (zepletInterface()->getRobotConnected())
                action();
            else
                m_notice->setText(tr("Connect the controller first."));
        });
    };
    addButton(0, 0, tr("Lamp on"),
              [this] { say(m_devices.setLamp(true), tr("The lamp is told to light.")); });
    addButton(0, 1, tr("Lamp off"),
              [this] { say(m_devices.setLamp(false), tr("The lamp is told to go out.")); });
    addButton(0, 2, tr("Temperature"), [this] { m_notice->setText(m_devices.temperature()); });
    addButton(0, 3, tr("Reset devices"),
              [this] { say(m_devices.reset(), tr("The devices are reset.")); });
    addButton(1, 0, tr("Grip"), [this] { m_notice->setText(m_gripper.grip(40)); });
    addButton(1, 1, tr("Release"), [this] { m_notice->setText(m_gripper.release()); });
    addButton(1, 2, tr("Run conveyor"),
              [this] { say(m_controller.runConveyor(true), tr("Asked.")); });
    addButton(1, 3, tr("Controller"), [this] { m_notice->setText(m_controller.description()); });
}

void CellPlugin::watch()
{
    InterfaceManager *const robot = zepletInterface();
    robot->connectNexoData(pluginName, doorKey,
                           [this](const QVariant &state) { showDoor(state.toString()); });
    robot->connectRcNotify(pluginName, conveyorPath, [this](const QVariant &value) {
        m_conveyor->setText(tr("The conveyor is at %1 mm.").arg(value.toMap()["position"].toInt()));
    });
    m_connected = robot->connectNetworkStatus(true, pluginName, m_page, [this] {
        m_notice->setText(m_controller.description()); // it may be another one
    });
    connect(robot, &InterfaceManager::sigNetworkConnect, m_page,
            [this] { m_link->setText(tr("Connected.")); });
    connect(robot, &InterfaceManager::sigNetworkDisConnect, m_page, [this](bool onPurpose) {
        m_link->setText(onPurpose ? tr("Disconnected.") : tr("The controller is lost."));
    });
}

void CellPlugin::showDoor(const QString &state)
{
    m_door->setText(state.isEmpty()                        ? tr("The door says nothing yet.")
                        : state == QLatin1String("closed") ? tr("The door is closed.")
                                                           : tr("The door is open."));
}

void CellPlugin::say(bool done, const QString &sentence)
{
    m_notice->setText(done ? sentence : tr("That did not work. The log says more."));
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new CellPlugin(parent); });
    return true;
}();

#include "cellplugin.moc"
