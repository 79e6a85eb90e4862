// Sends the robot to a point of the open project, and stops it. Shows moveToStart() straight and by
// joints, checkPointMoveTo(), and a watch of what goes wrong on the way.
#include <ostrel/moduleobject.h>
#include <zeplet/zeplet.h>

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <functional>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("moves");
const QString errorKey = QStringLiteral("move.last_error_with_setting");
using Sentence = std::function<QString()>; // to be said again in another language
} // namespace

class MovesPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit MovesPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(QT_TRANSLATE_NOOP("navigation", "My moves"));
    }

    void init() override;
    void detach() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void translate();
    void say(const Sentence &sentence);
    void refresh();
    void move(bool joint);
    void stop();
    void tellError(const QVariantMap &error);

    QPointer<QWidget> m_page;
    QComboBox *m_points = nullptr;
    QSpinBox *m_speed = nullptr;
    QLabel *m_notice = nullptr;
    Sentence m_sentence = [] { return tr("Choose a point and a speed. Stop ends every move."); };
    QString m_last; ///< the point that the robot was sent to last
    bool m_watched = false; ///< what goes wrong on the way, until moveToStop()
};

void MovesPlugin::init()
{
    m_page = new QWidget;
    m_page->installEventFilter(this);
    auto *layout = new QGridLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    m_speed = new QSpinBox;
    m_speed->setRange(1, 1000);
    m_speed->setValue(50);
    m_notice = new QLabel;
    m_notice->setTextFormat(Qt::PlainText); // a name is no markup
    m_notice->setWordWrap(true);
    layout->addWidget(m_points = new QComboBox, 0, 0);
    layout->addWidget(m_speed, 0, 1);
    layout->addWidget(m_notice, 1, 0, 1, 5, Qt::AlignTop);
    layout->setColumnStretch(0, 1);
    layout->setRowStretch(1, 1);
    const auto addButton = [=](const char *text, const char *role, const auto &action) {
        auto *button = new QPushButton;
        button->setObjectName(text);
        button->setProperty("role", role);
        layout->addWidget(button, 0, layout->count() - 1);
        connect(button, &QPushButton::clicked, this, action);
    };
    addButton(QT_TR_NOOP("Move straight"), "primary", [this] { move(false); });
    addButton(QT_TR_NOOP("Move by joints"), "primary", [this] { move(true); });
    addButton(QT_TR_NOOP("Stop"), "danger", [this] { stop(); });
    refresh();
    translate();
    CreateCenterWidget(pluginName, m_page);
    connect(m("tavik.project.point._list"), &ostrel::ModuleObject::changed, m_page,
            [this] { refresh(); });

    // What goes wrong on the way. The first starts the delivery, the second ends with the page.
    zepletInterface()->connectNexoData(pluginName, errorKey, {});
    zepletEvent()->subscribeFiltered(
        NexoDataChange, filterByServiceKey(errorKey),
        adaptNexoCallback([this](const QVariant &error) { tellError(error.toMap()); }), pluginName,
        m_page);
}

// The page hears of another language.
bool MovesPlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translate();
    return PluginBase::eventFilter(watched, event);
}

void MovesPlugin::translate()
{
    for (QPushButton *button : m_page->findChildren<QPushButton *>())
        button->setText(tr(qUtf8Printable(button->objectName()))); // its name is in English
    m_speed->setSuffix(tr(" mm/s"));
    say(m_sentence);
}

void MovesPlugin::say(const Sentence &sentence)
{
    m_sentence = sentence;
    m_notice->setText(m_sentence());
}

// The delivery has to be ended, else the panel goes on with it. Without the page nobody could stop
// the robot.
void MovesPlugin::detach()
{
    if (m_watched)
        zepletInterface()->moveToStop();
    for (const QString &id : zepletEvent()->totalSubscriptionIds(pluginName))
        zepletInterface()->disconnectNexoData(pluginName, errorKey, id);
    delete m_page;
}

// Where the chosen point is gone, none is: the robot must not go to whichever is first now.
void MovesPlugin::refresh()
{
    const QString chosen = m_points->currentText();
    m_points->clear();
    m_points->addItems(zepletInterface()->getPointNameList());
    m_points->setCurrentIndex(m_points->findText(chosen));
}

void MovesPlugin::move(bool joint)
{
    const QString name = m_points->currentText();
    if (name.isEmpty())
        return say([] { return tr("Choose a point. Where there is none, teach one first."); });
    if (!zepletInterface()->getRobotConnected())
        return say([] { return tr("Connect the controller first."); });
    if (!m_last.isEmpty() && zepletInterface()->checkPointMoveTo(m_last, name) < 0)
        return say([last = m_last, name] {
            return tr("The robot can't go from \"%1\" to \"%2\". Choose a point between them.")
                .arg(last, name);
        });
    int result = 0;
    if (joint) // the axes need to know which configuration is meant
        zepletInterface()->moveToStart(result, name, m_speed->value(), true, true);
    else
        zepletInterface()->moveToStart(result, name, m_speed->value(), false);
    m_watched = m_watched || result != -1;
    if (result == -1)
        return say([=] { return tr("\"%1\" has no place. Teach it first.").arg(name); });
    if (result == -2)
        return say([=] {
            return tr("\"%1\" has no arm configuration. Teach it again as a pose, or move "
                      "straight.")
                .arg(name);
        });
    m_last = name;
    say([=] { return tr("The robot was sent to \"%1\".").arg(name); });
}

void MovesPlugin::stop()
{
    zepletInterface()->moveToStop();
    m_watched = false;
    m_last.clear(); // who knows where it stands now
    const bool connected = zepletInterface()->getRobotConnected();
    say([=] {
        return connected ? tr("The robot was told to stop.")
                         : tr("The controller is not connected: use the emergency stop.");
    });
}

void MovesPlugin::tellError(const QVariantMap &error)
{
    if (error.isEmpty())
        return; // a new move begins
    m_last.clear();
    say([=] { return tr("The robot did not get there: %1").arg(error["message"].toString()); });
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new MovesPlugin(parent); });
    return true;
}();

#include "movesplugin.moc"
