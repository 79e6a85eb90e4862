// A page with a button that switches the motors, and a line that shows what the robot reports.
#include <zeplet/zeplet.h>

#include <QEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("sample");
}

class SamplePlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit SamplePlugin(QObject *parent)
        : PluginBase(parent)
    {
        // The navigation's title, which translations may replace.
        setPluginLabel(QStringLiteral(QT_TRANSLATE_NOOP("navigation", "Sample label")));
    }

    void init() override;
    void detach() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void translate();
    void switchMotors();
    void showMotors();

    QPointer<QWidget> m_page;
    QLabel *m_motors = nullptr;
    QPushButton *m_switch = nullptr;
};

// The panel is there: build the page, then subscribe to what it shows.
void SamplePlugin::init()
{
    m_page = new QWidget;
    m_page->installEventFilter(this);
    m_motors = new QLabel;
    m_motors->setObjectName("motors");
    m_switch = new QPushButton;
    connect(m_switch, &QPushButton::clicked, this, &SamplePlugin::switchMotors);

    auto *layout = new QVBoxLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    layout->addWidget(m_motors);
    layout->addWidget(m_switch, 0, Qt::AlignLeft);
    layout->addStretch();
    CreateCenterWidget(pluginName, m_page);

    // With the page as their context, the subscriptions end when it goes.
    for (ZepletEventType type : {RCPowerStatusChange, NetworkConnected, NetworkDisconnected})
        zepletEvent()->subscribe(
            type, [this](const ZepletEvent &) { showMotors(); }, pluginName, m_page);
    translate();
}

// The page hears of another language.
bool SamplePlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translate();
    return PluginBase::eventFilter(watched, event);
}

// All texts of the page, each time the operator chooses a language.
void SamplePlugin::translate()
{
    m_switch->setText(tr("Switch the motors"));
    showMotors();
}

// The last call: leave nothing behind.
void SamplePlugin::detach()
{
    delete m_page;
}

// The request does not wait: an event tells when the robot has done it.
void SamplePlugin::switchMotors()
{
    InterfaceManager *const robot = zepletInterface();
    if (!robot->changeRobotPowerStatue(!robot->getRobotEleStatus(), false))
        ThrowLog(pluginName, ThrowLogWarning,
                 tr("The controller can't be reached: check its cable."));
}

void SamplePlugin::showMotors()
{
    InterfaceManager *const robot = zepletInterface();
    if (!robot->getRobotConnected())
        m_motors->setText(tr("No controller is connected."));
    else
        m_motors->setText(robot->getRobotEleStatus() ? tr("The motors are on.")
                                                     : tr("The motors are off."));
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new SamplePlugin(parent); });
    return true;
}();

#include "sampleplugin.moc"
