// The points of the open project: to teach, list, edit and remove them.
#include <ostrel/moduleobject.h>
#include <zeplet/zeplet.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("points");
constexpr double step = 10; // mm

bool exists(const QString &name)
{
    return zepletInterface()->getPointNameList().contains(name, Qt::CaseInsensitive);
}

// The first element, as a person reads it. Points that were made but never taught have no values.
QString valuesOf(const QString &name)
{
    const QJsonObject point = zepletInterface()->getPointObjDataByName(name);
    const QJsonObject element = point["value"].toObject().value("[0][0][0]").toObject();
    const bool joint = point["property"] == QLatin1String("joint");
    if (!element.contains(QLatin1String(joint ? "inner_pos" : "pose")))
        return QStringLiteral("–");
    QStringList texts;
    for (const double value : joint ? zepletInterface()->getPointJointDataByName(name, QString())
                                    : zepletInterface()->getPointDataByName(name, QString()))
        texts.append(QString::number(value, 'f', 1));
    return texts.join(QStringLiteral("   "));
}
} // namespace

class PointsPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit PointsPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(tr("My points"));
    }

    void init() override;
    void detach() override { delete m_page; }

private:
    void refresh();
    void teach(bool joint);
    void raise();
    void remove();
    void say(bool done, const QString &success, const QString &failure);
    bool isSecondTap(const QString &sentence);

    QPointer<QWidget> m_page;
    QLineEdit *m_name = nullptr;
    QTableWidget *m_table = nullptr;
    QLabel *m_notice = nullptr;
};

void PointsPlugin::init()
{
    m_page = new QWidget;
    auto *title = new QLabel(tr("My points"));
    title->setProperty("role", "heading");
    m_name = new QLineEdit;
    m_name->setPlaceholderText(tr("Name of a point"));
    m_table = new QTableWidget(0, 3);
    m_table->setHorizontalHeaderLabels({tr("Point"), tr("Kind"), tr("Values in mm and degrees")});
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(53); // a finger's width
    m_table->setShowGrid(false);
    m_table->setAlternatingRowColors(true);
    m_table->setEditTriggers(QTableWidget::NoEditTriggers);
    m_table->setSelectionBehavior(QTableWidget::SelectRows);
    m_notice = new QLabel(tr("Move the robot to a place, type a name, then tap Teach."));
    m_notice->setTextFormat(Qt::PlainText); // a name is no markup
    m_notice->setWordWrap(true);

    auto *line = new QHBoxLayout;
    line->addWidget(m_name, 1);
    const auto addButton = [&](const QString &text, const std::function<void()> &action) {
        auto *button = new QPushButton(text);
        line->addWidget(button);
        connect(button, &QPushButton::clicked, this, action);
    };
    addButton(tr("Teach pose"), [this] { teach(false); });
    addButton(tr("Teach joints"), [this] { teach(true); });
    addButton(tr("Raise 10 mm"), [this] { raise(); });
    addButton(tr("Remove"), [this] { remove(); });
    auto *layout = new QVBoxLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    layout->addWidget(title);
    layout->addLayout(line);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_notice);
    connect(m_table, &QTableWidget::cellClicked, this,
            [this](int row) { m_name->setText(m_table->item(row, 0)->text()); });
    refresh();
    CreateCenterWidget(pluginName, m_page);

    // Whoever adds, edits or removes a point, or opens another project.
    for (const char *key : {"tavik.project.point._list", "tavik.project.point.hot_update.operate"})
        connect(m(key), &ostrel::ModuleObject::changed, m_page, [this] { refresh(); });
}

void PointsPlugin::refresh()
{
    const QStringList names = zepletInterface()->getPointNameList();
    m_table->setRowCount(names.size());
    for (int row = 0; row < names.size(); ++row) {
        const QJsonObject point = zepletInterface()->getPointObjDataByName(names[row]);
        const QString texts[] = {names[row], point["property"].toString(), valuesOf(names[row])};
        for (int column = 0; column < 3; ++column)
            m_table->setItem(row, column, new QTableWidgetItem(texts[column]));
    }
}

// A controller that gives no position would teach zeros: it is asked before anything is replaced.
void PointsPlugin::teach(bool joint)
{
    InterfaceManager *const robot = zepletInterface();
    const QString name = m_name->text().trimmed();
    if (name.isEmpty())
        return m_notice->setText(tr("Type a name first."));
    if (robot->getCurrentPointData(robot->getCurTool(), robot->getCurWobj()).isNull())
        return m_notice->setText(
            tr("The controller says no position. Connect it, then try again."));
    if (exists(name) && !isSecondTap(tr("Tap again: \"%1\" gets a new place.").arg(name)))
        return;
    say(robot->addCurrentPoint(name, joint, robot->getCurTool(), robot->getCurWobj(), QString()),
        tr("\"%1\" is taught.").arg(name),
        tr("\"%1\" is taught here, but not on the controller: see the log.").arg(name));
}

void PointsPlugin::raise()
{
    const QString name = m_name->text().trimmed();
    QVector<double> pose = zepletInterface()->getPointDataByName(name, QString());
    if (pose.isEmpty())
        return m_notice->setText(tr("\"%1\" is no point with a pose. Select one.").arg(name));
    pose[2] += step;
    say(zepletInterface()->setPointCartData(name, pose, QString()),
        tr("\"%1\" is now at a height of %2 mm.").arg(name, QString::number(pose[2])),
        tr("\"%1\" is raised here, but not on the controller: see the log.").arg(name));
}

void PointsPlugin::remove()
{
    const QString name = m_name->text().trimmed();
    if (!exists(name))
        return m_notice->setText(tr("There is no \"%1\". Select a point.").arg(name));
    if (!isSecondTap(tr("Tap again: \"%1\" goes for good.").arg(name)))
        return;
    const bool removed = zepletInterface()->removePoint(name);
    say(removed, tr("\"%1\" is removed.").arg(name),
        exists(name) ? tr("The controller needs \"%1\". Stop its program first.").arg(name)
                     : tr("\"%1\" is removed here, but the file is not: see the log.").arg(name));
}

void PointsPlugin::say(bool done, const QString &success, const QString &failure)
{
    m_notice->setText(done ? success : failure);
}

// A question stays on the page until anything else is said.
bool PointsPlugin::isSecondTap(const QString &sentence)
{
    const bool asked = m_notice->text() == sentence;
    m_notice->setText(sentence);
    return asked;
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new PointsPlugin(parent); });
    return true;
}();

#include "pointsplugin.moc"
