// The points of the open project: to teach, list, edit and remove them. Shows teaching with a tool
// and a work object, reading poses and joints, and an edit that reaches the controller.
#include <ostrel/moduleobject.h>
#include <zeplet/zeplet.h>

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <functional>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("points");
constexpr double step = 10; // mm

bool exists(const QString &name)
{
    return zepletInterface()->getPointNameList().contains(name, Qt::CaseInsensitive);
}

// The first element, in mm and degrees. Points that were made but never taught have no values.
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

using Sentence = std::function<QString()>; // to be said again in another language
} // namespace

class PointsPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit PointsPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(QT_TRANSLATE_NOOP("navigation", "My points"));
    }

    void init() override;
    void detach() override { delete m_page; }
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void translate();
    void say(const Sentence &sentence);
    void refresh();
    void teach(const QString &name, bool joint);
    void raise(const QString &name);
    void remove(const QString &name);
    bool isSecondTap(const Sentence &question);

    QPointer<QWidget> m_page;
    QLineEdit *m_name = nullptr;
    QListWidget *m_list = nullptr;
    QLabel *m_notice = nullptr;
    Sentence m_sentence
        = [] { return tr("Move the robot to a place, type a name, then tap Teach."); };
};

void PointsPlugin::init()
{
    m_page = new QWidget;
    m_page->installEventFilter(this);
    auto *layout = new QGridLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    m_name = new QLineEdit;
    m_list = new QListWidget;
    m_notice = new QLabel;
    m_notice->setTextFormat(Qt::PlainText); // a name is no markup
    m_notice->setWordWrap(true);
    layout->addWidget(m_name, 0, 0);
    layout->addWidget(m_list, 1, 0, 1, 5);
    layout->addWidget(m_notice, 2, 0, 1, 5);
    const auto addButton = [=](int column, const char *text, const auto &action) {
        auto *button = new QPushButton;
        button->setObjectName(text);
        layout->addWidget(button, 0, column);
        connect(button, &QPushButton::clicked, this, [=] { action(m_name->text().trimmed()); });
    };
    addButton(1, QT_TR_NOOP("Teach pose"), [this](const QString &point) { teach(point, false); });
    addButton(2, QT_TR_NOOP("Teach joints"), [this](const QString &point) { teach(point, true); });
    addButton(3, QT_TR_NOOP("Raise 10 mm"), [this](const QString &point) { raise(point); });
    addButton(4, QT_TR_NOOP("Remove"), [this](const QString &point) { remove(point); });
    connect(m_list, &QListWidget::itemClicked, this, [this](QListWidgetItem *item) {
        m_name->setText(item->data(Qt::UserRole).toString());
    });
    refresh();
    translate();
    CreateCenterWidget(pluginName, m_page);

    // Whoever adds, edits or removes a point, or opens another project.
    for (const char *key : {"tavik.project.point._list", "tavik.project.point.hot_update.operate"})
        connect(m(key), &ostrel::ModuleObject::changed, m_page, [this] { refresh(); });
}

// The page hears of another language.
bool PointsPlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translate();
    return PluginBase::eventFilter(watched, event);
}

void PointsPlugin::translate()
{
    for (QPushButton *button : m_page->findChildren<QPushButton *>())
        button->setText(tr(qUtf8Printable(button->objectName()))); // its name is in English
    m_name->setPlaceholderText(tr("Name of a point"));
    say(m_sentence);
}

void PointsPlugin::say(const Sentence &sentence)
{
    m_sentence = sentence;
    m_notice->setText(m_sentence());
}

void PointsPlugin::refresh()
{
    m_list->clear();
    for (const QString &name : zepletInterface()->getPointNameList()) {
        auto *item = new QListWidgetItem(name + ":   " + valuesOf(name), m_list);
        item->setData(Qt::UserRole, name);
        item->setSizeHint({0, 53}); // a finger's width
    }
}

// A controller that gives no position would teach zeros: it is asked before anything is replaced.
void PointsPlugin::teach(const QString &name, bool joint)
{
    InterfaceManager *const robot = zepletInterface();
    const QString tool = robot->getCurTool(), wobj = robot->getCurWobj();
    if (name.isEmpty())
        return say([] { return tr("Type a name first."); });
    if (robot->getCurrentPointData(tool, wobj).isNull())
        return say(
            [] { return tr("The controller says no position. Connect it, then try again."); });
    if (exists(name)
        && !isSecondTap([=] { return tr("Tap again: \"%1\" gets a new place.").arg(name); }))
        return;
    const bool taught = robot->addCurrentPoint(name, joint, tool, wobj, QString());
    say([=] {
        return (taught ? tr("\"%1\" is taught.")
                       : tr("\"%1\" is taught here, but not on the controller: see the log."))
            .arg(name);
    });
}

void PointsPlugin::raise(const QString &name)
{
    QVector<double> pose = zepletInterface()->getPointDataByName(name, QString());
    if (pose.isEmpty())
        return say([=] { return tr("\"%1\" is no point with a pose. Select one.").arg(name); });
    pose[2] += step;
    const bool raised = zepletInterface()->setPointCartData(name, pose, QString());
    say([=] {
        return (raised ? tr("\"%1\" is raised.")
                       : tr("\"%1\" is raised here, but not on the controller: see the log."))
            .arg(name);
    });
}

void PointsPlugin::remove(const QString &name)
{
    if (!exists(name))
        return say([=] { return tr("There is no \"%1\". Select a point.").arg(name); });
    if (!isSecondTap([=] { return tr("Tap again: \"%1\" goes for good.").arg(name); }))
        return;
    const bool removed = zepletInterface()->removePoint(name), stays = exists(name);
    say([=] {
        return (removed     ? tr("\"%1\" is removed.")
                    : stays ? tr("The controller needs \"%1\". Stop its program first.")
                            : tr("\"%1\" is removed here, but the file is not: see the log."))
            .arg(name);
    });
}

// A question stays on the page until anything else is said.
bool PointsPlugin::isSecondTap(const Sentence &question)
{
    const bool asked = m_notice->text() == question();
    say(question);
    return asked;
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new PointsPlugin(parent); });
    return true;
}();

#include "pointsplugin.moc"
