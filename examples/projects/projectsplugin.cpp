// The projects of the connected robot: to make, open and remove them. Shows every operation for
// projects, what each result code means, and a question before what can't be undone.
#include <ostrel/moduleobject.h>
#include <zeplet/zeplet.h>

#include <QDeadlineTimer>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("projects");
}

class ProjectsPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit ProjectsPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(QT_TRANSLATE_NOOP("navigation", "My projects"));
    }

    void init() override;
    void detach() override { delete m_page; }

private:
    void refresh();
    void create();
    void open();
    void remove();
    void say(int code, const QString &done, const QString &wrongState);
    QString selected() const;

    QPointer<QWidget> m_page;
    QLineEdit *m_name = nullptr;
    QListWidget *m_list = nullptr;
    QLabel *m_notice = nullptr;
    QString m_toRemove; ///< what a second tap on "Remove" removes, soon after the first
    QDeadlineTimer m_confirmUntil;
};

void ProjectsPlugin::init()
{
    m_page = new QWidget;
    auto *title = new QLabel(tr("My projects"));
    title->setProperty("role", "heading");
    m_name = new QLineEdit;
    m_name->setPlaceholderText(tr("Name of a new project"));
    m_list = new QListWidget;
    m_notice = new QLabel(tr("Type a name, then tap Create."));
    m_notice->setTextFormat(Qt::PlainText); // a name is no markup

    auto *line = new QHBoxLayout;
    line->addWidget(m_name, 1);
    const auto addButton = [&](const QString &text, void (ProjectsPlugin::*action)()) {
        auto *button = new QPushButton(text);
        line->addWidget(button);
        connect(button, &QPushButton::clicked, this, action);
    };
    addButton(tr("Create"), &ProjectsPlugin::create);
    addButton(tr("Open"), &ProjectsPlugin::open);
    addButton(tr("Remove"), &ProjectsPlugin::remove);
    auto *layout = new QVBoxLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    layout->addWidget(title);
    layout->addLayout(line);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_notice);
    refresh();
    CreateCenterWidget(pluginName, m_page);

    // Whoever switches, makes or removes a project; and another robot has other projects.
    for (const char *key :
         {"tavik.project.cur_project", "tavik.project.refresh_project", "brisa.r.id"})
        connect(m(key), &ostrel::ModuleObject::changed, m_page, [this] { refresh(); });
}

void ProjectsPlugin::refresh()
{
    const QString open = zepletInterface()->getCurProject().section('/', -1);
    QStringList names = zepletInterface()->getProjectList();
    names.sort(Qt::CaseInsensitive);
    m_list->clear();
    for (const QString &name : qAsConst(names)) {
        auto *item = new QListWidgetItem(name == open ? tr("%1   (open)").arg(name) : name, m_list);
        item->setData(Qt::UserRole, name);
        item->setSizeHint({0, 53}); // a finger's width
        item->setSelected(name == open);
    }
}

void ProjectsPlugin::create()
{
    const QString name = m_name->text().trimmed();
    say(zepletInterface()->createProject(name, tr("Made by an example"), true),
        tr("\"%1\" is made and open.").arg(name),
        tr("There is a \"%1\" already. Choose another name, or open it.").arg(name));
}

void ProjectsPlugin::open()
{
    const QString name = selected();
    say(zepletInterface()->changeProject(name), tr("\"%1\" is open.").arg(name),
        tr("\"%1\" is no longer there.").arg(name));
}

void ProjectsPlugin::remove()
{
    const QString name = selected();
    if (!name.isEmpty() && (name != m_toRemove || m_confirmUntil.hasExpired())) {
        m_toRemove = name;
        m_confirmUntil.setRemainingTime(5000);
        return m_notice->setText(
            tr("Tap Remove again within 5 s: \"%1\" goes with all its points.").arg(name));
    }
    m_toRemove.clear();
    say(zepletInterface()->removeProject(name), tr("\"%1\" is removed.").arg(name),
        tr("\"%1\" is no longer there.").arg(name));
}

// Each result code is a sentence that says what to do next.
void ProjectsPlugin::say(int code, const QString &done, const QString &wrongState)
{
    const QString sentences[] = {done, tr("Type or select a name; one without \"/\"."), wrongState,
                                 tr("The disk refused. Make room, or choose a shorter name.")};
    m_notice->setText(sentences[qBound(0, -code, 3)]);
}

QString ProjectsPlugin::selected() const
{
    const QListWidgetItem *item = m_list->selectedItems().value(0);
    return item ? item->data(Qt::UserRole).toString() : QString();
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new ProjectsPlugin(parent); });
    return true;
}();

#include "projectsplugin.moc"
