// The projects of the connected robot: to make, open and remove them. Shows every operation for
// projects, what each result code means, and a question before what can't be undone.
#include <ostrel/moduleobject.h>
#include <zeplet/zeplet.h>

#include <QDeadlineTimer>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <functional>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("projects");
using Sentence = std::function<QString()>; // to be said again in another language
} // namespace

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
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void translate();
    void say(const Sentence &sentence);
    void refresh();
    void markOpen();
    void create();
    void open();
    void remove();
    void tell(int code, const Sentence &done, const Sentence &wrongState);
    QString selected() const;

    QPointer<QWidget> m_page;
    QLabel *m_title = nullptr;
    QLineEdit *m_name = nullptr;
    QListWidget *m_list = nullptr;
    QLabel *m_notice = nullptr;
    Sentence m_sentence = [] { return tr("Type a name, then tap Create."); };
    QString m_toRemove; ///< what a second tap on "Remove" removes, soon after the first
    QDeadlineTimer m_confirmUntil;
};

void ProjectsPlugin::init()
{
    m_page = new QWidget;
    m_page->installEventFilter(this);
    m_title = new QLabel;
    m_title->setProperty("role", "heading");
    m_name = new QLineEdit;
    m_list = new QListWidget;
    m_notice = new QLabel;
    m_notice->setTextFormat(Qt::PlainText); // a name is no markup

    auto *line = new QHBoxLayout;
    line->addWidget(m_name, 1);
    const auto addButton = [&](const char *text, void (ProjectsPlugin::*action)()) {
        auto *button = new QPushButton;
        button->setObjectName(text);
        line->addWidget(button);
        connect(button, &QPushButton::clicked, this, action);
    };
    addButton(QT_TR_NOOP("Create"), &ProjectsPlugin::create);
    addButton(QT_TR_NOOP("Open"), &ProjectsPlugin::open);
    addButton(QT_TR_NOOP("Remove"), &ProjectsPlugin::remove);
    auto *layout = new QVBoxLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    layout->addWidget(m_title);
    layout->addLayout(line);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_notice);
    refresh();
    translate();
    CreateCenterWidget(pluginName, m_page);

    // Whoever switches, makes or removes a project; and another robot has other projects.
    for (const char *key :
         {"tavik.project.cur_project", "tavik.project.refresh_project", "brisa.r.id"})
        connect(m(key), &ostrel::ModuleObject::changed, m_page, [this] { refresh(); });
}

// The page hears of another language.
bool ProjectsPlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translate();
    return PluginBase::eventFilter(watched, event);
}

void ProjectsPlugin::translate()
{
    for (QPushButton *button : m_page->findChildren<QPushButton *>())
        button->setText(tr(qUtf8Printable(button->objectName()))); // its name is in English
    m_title->setText(tr("My projects"));
    m_name->setPlaceholderText(tr("Name of a new project"));
    say(m_sentence);
    markOpen();
}

void ProjectsPlugin::say(const Sentence &sentence)
{
    m_sentence = sentence;
    m_notice->setText(m_sentence());
}

void ProjectsPlugin::refresh()
{
    const QString open = zepletInterface()->getCurProject().section('/', -1);
    QStringList names = zepletInterface()->getProjectList();
    names.sort(Qt::CaseInsensitive);
    m_list->clear();
    for (const QString &name : qAsConst(names)) {
        auto *item = new QListWidgetItem(m_list);
        item->setData(Qt::UserRole, name);
        item->setSizeHint({0, 53}); // a finger's width
        item->setSelected(name == open);
    }
    markOpen();
}

void ProjectsPlugin::markOpen()
{
    const QString open = zepletInterface()->getCurProject().section('/', -1);
    for (int row = 0; row < m_list->count(); ++row) {
        const QString name = m_list->item(row)->data(Qt::UserRole).toString();
        m_list->item(row)->setText(name == open ? tr("%1   (open)").arg(name) : name);
    }
}

void ProjectsPlugin::create()
{
    const QString name = m_name->text().trimmed();
    tell(
        zepletInterface()->createProject(name, tr("Made by an example"), true),
        [=] { return tr("\"%1\" is made and open.").arg(name); },
        [=] {
            return tr("There is a \"%1\" already. Choose another name, or open it.").arg(name);
        });
}

void ProjectsPlugin::open()
{
    const QString name = selected();
    tell(
        zepletInterface()->changeProject(name), [=] { return tr("\"%1\" is open.").arg(name); },
        [=] { return tr("\"%1\" is no longer there.").arg(name); });
}

void ProjectsPlugin::remove()
{
    const QString name = selected();
    if (!name.isEmpty() && (name != m_toRemove || m_confirmUntil.hasExpired())) {
        m_toRemove = name;
        m_confirmUntil.setRemainingTime(5000);
        return say([=] {
            return tr("Tap Remove again within 5 s: \"%1\" goes with all its points.").arg(name);
        });
    }
    m_toRemove.clear();
    tell(
        zepletInterface()->removeProject(name), [=] { return tr("\"%1\" is removed.").arg(name); },
        [=] { return tr("\"%1\" is no longer there.").arg(name); });
}

// Each result code is a sentence that says what to do next.
void ProjectsPlugin::tell(int code, const Sentence &done, const Sentence &wrongState)
{
    const Sentence sentences[]
        = {done, [] { return tr("Type or select a name; one without \"/\"."); }, wrongState,
           [] { return tr("The disk refused. Make room, or choose a shorter name."); }};
    say(sentences[qBound(0, -code, 3)]);
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
