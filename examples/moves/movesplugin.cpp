// Sends the robot to a point of the open project, and stops it.
#include <zeplet/zeplet.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("moves");
const QString errorKey = QStringLiteral("move.last_error_with_setting");
} // namespace

class MovesPage : public QWidget
{
    Q_OBJECT

public:
    MovesPage();

protected:
    void showEvent(QShowEvent *event) override;

private:
    QPushButton *addButton(QLayout *line, const QString &text, const char *role);
    void move(bool joint);
    void stop();
    void tellError(const QVariantMap &error);

    QComboBox *m_points = new QComboBox;
    QSpinBox *m_speed = new QSpinBox;
    QLabel *m_notice = new QLabel;
    QString m_last; ///< the point that the robot was sent to last
};

MovesPage::MovesPage()
{
    auto *title = new QLabel(tr("My moves"));
    title->setProperty("role", "heading");
    m_speed->setRange(1, 1000);
    m_speed->setValue(50);
    m_speed->setSuffix(tr(" mm/s"));
    m_notice->setTextFormat(Qt::PlainText); // a name is no markup
    m_notice->setWordWrap(true);
    auto *line = new QHBoxLayout;
    line->addWidget(m_points, 1);
    line->addWidget(m_speed);
    auto *linear = addButton(line, tr("Move straight"), "primary");
    auto *joint = addButton(line, tr("Move by joints"), "primary");
    connect(linear, &QPushButton::clicked, this, [this] { move(false); });
    connect(joint, &QPushButton::clicked, this, [this] { move(true); });
    connect(addButton(line, tr("Stop"), "danger"), &QPushButton::clicked, this, &MovesPage::stop);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    layout->addWidget(title);
    layout->addLayout(line);
    layout->addWidget(m_notice);
    layout->addStretch();

    // What goes wrong on the way. The first starts the delivery, the second ends with this page.
    zepletInterface()->connectNexoData(pluginName, errorKey, {});
    zepletEvent()->subscribeFiltered(
        NexoDataChange, filterByServiceKey(errorKey),
        adaptNexoCallback([this](const QVariant &error) { tellError(error.toMap()); }), pluginName,
        this);
}

QPushButton *MovesPage::addButton(QLayout *line, const QString &text, const char *role)
{
    auto *button = new QPushButton(text);
    button->setProperty("role", role);
    line->addWidget(button);
    return button;
}

void MovesPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_points->clear();
    m_points->addItems(zepletInterface()->getPointNameList());
    m_notice->setText(m_points->count() ? tr("Choose a point and a speed. Stop ends every move.")
                                        : tr("The open project has no points. Teach one first."));
}

void MovesPage::move(bool joint)
{
    const QString name = m_points->currentText();
    if (!zepletInterface()->getRobotConnected())
        return m_notice->setText(tr("Connect the controller first."));
    if (!m_last.isEmpty() && zepletInterface()->checkPointMoveTo(m_last, name) < 0)
        return m_notice->setText(tr("The robot can't go from \"%1\" to \"%2\". Choose a point "
                                    "between them.")
                                     .arg(m_last, name));
    int result = 0;
    zepletInterface()->moveToStart(result, name, m_speed->value(), joint, joint);
    if (result == -1)
        return m_notice->setText(tr("\"%1\" has no place. Teach it first.").arg(name));
    if (result == -2)
        return m_notice->setText(tr("\"%1\" has no arm configuration. Teach it again as a pose, or "
                                    "move straight.")
                                     .arg(name));
    m_last = name;
    m_notice->setText(tr("The robot was sent to \"%1\".").arg(name));
}

void MovesPage::stop()
{
    zepletInterface()->moveToStop();
    m_last.clear(); // who knows where it stands now
    m_notice->setText(zepletInterface()->getRobotConnected()
                          ? tr("The robot was told to stop.")
                          : tr("The controller is not connected: use the emergency stop."));
}

void MovesPage::tellError(const QVariantMap &error)
{
    if (error.isEmpty())
        return; // a new move begins
    m_last.clear();
    m_notice->setText(tr("The robot did not get there: %1").arg(error["message"].toString()));
}

class MovesPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit MovesPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(tr("My moves"));
    }

    void init() override { CreateCenterWidget(pluginName, m_page = new MovesPage); }
    void detach() override { delete m_page; }

private:
    QPointer<MovesPage> m_page;
};

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new MovesPlugin(parent); });
    return true;
}();

#include "movesplugin.moc"
