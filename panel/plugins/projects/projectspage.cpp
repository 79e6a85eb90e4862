#include "projectspage.h"

#include "kit/form.h"
#include "kit/table.h"
#include "refusals.h"

#include <QCheckBox>
#include <QDateTime>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <brisa/languagemanager.h>
#include <zeplet/interface/interfacemanager.h>

using kit::Mark;
using kit::Tone;
using zeplet::zepletInterface;

namespace
{

constexpr int MarksWidth = 220;
constexpr int CreatedWidth = 200;

/** A time of a project's file as the operator writes one; another text stays as it is. */
QString timeText(const QString &written)
{
    const QDateTime time = QDateTime::fromString(written, QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    return time.isValid()
        ? brisa::LanguageManager::instance()->locale().toString(time, QLocale::ShortFormat)
        : written;
}

kit::Row rowOf(const Project &project)
{
    kit::Cell name;
    name.text = project.name;
    name.hint = project.description;
    kit::Cell state;
    if (project.open)
        state.marks.append(Mark {ProjectsPage::tr("Open", "state of a project"), Tone::Ok});
    if (project.autoload)
        state.marks.append(Mark {ProjectsPage::tr("Loads at start"), Tone::Accent});
    kit::Cell created;
    created.text = timeText(project.created);
    created.tone = Tone::Muted;
    return {project.name, {name, state, created}};
}

QString subtitle(int count)
{
    if (zepletInterface()->getRobotID().isEmpty())
        return ProjectsPage::tr("No robot is known yet: these projects belong to none.");
    return ProjectsPage::tr("Robot %1, projects: %2")
        .arg(zepletInterface()->getRobotID(), QString::number(count));
}

} // namespace

ProjectsPage::ProjectsPage(QWidget *parent)
    : Page(
        pluginName(), [] { return tr("Projects"); }, parent)
    , m_table(new kit::Table(
          [] {
              return QStringList {tr("Name"), tr("State"), tr("Created")};
          },
          this))
    , m_open(addButton([] { return tr("Open"); }, QStringLiteral("openProject")))
    , m_remove(addButton([] { return tr("Remove"); }, QStringLiteral("removeProject")))
{
    const QPushButton *const create = addButton(
        [] { return tr("New project"); }, QStringLiteral("newProject"), QStringLiteral("primary"));
    m_table->setObjectName(QStringLiteral("projects"));
    m_table->setWidths({0, MarksWidth, -CreatedWidth});
    body()->addWidget(m_table, 1);
    connect(create, &QPushButton::clicked, this, &ProjectsPage::askForNew);
    connect(m_open, &QPushButton::clicked, this, [this] { open(m_table->currentKey()); });
    connect(m_remove, &QPushButton::clicked, this, [this] { askToRemove(m_table->currentKey()); });
    connect(m_table, &kit::Table::currentKeyChanged, this, &ProjectsPage::refreshButtons);
    follow({QStringLiteral("tavik.project.refresh_project"),
            QStringLiteral("tavik.project.project_list"),
            QStringLiteral("tavik.project.cur_project"),
            QStringLiteral("tavik.project.autoload_prj_path"), QStringLiteral("brisa.r.id")});
}

QString ProjectsPage::pluginName()
{
    return QStringLiteral("page-projects");
}

void ProjectsPage::refresh()
{
    m_projects = readProjects();
    QVector<kit::Row> rows;
    for (const Project &project : qAsConst(m_projects))
        rows.append(rowOf(project));
    m_table->setRows(rows);
    m_table->setEmptyState(brisa::Glyph::Folder, tr("No projects yet"),
                           tr("\"New project\" makes the first one for this robot."));
    setSubtitle(subtitle(rows.size()));
    refreshButtons();
}

void ProjectsPage::refreshButtons()
{
    const Project *const chosen = find(m_table->currentKey());
    m_open->setEnabled(chosen && !chosen->open);
    m_remove->setEnabled(chosen);
}

void ProjectsPage::askForNew()
{
    QStringList taken;
    for (const Project &project : qAsConst(m_projects))
        taken.append(project.name);
    auto *const form = new kit::Form(this, tr("New project"), tr("Create"));
    const QLineEdit *const name = form->addText(tr("Name"), QStringLiteral("projectName"));
    const QLineEdit *const description
        = form->addText(tr("Description"), QStringLiteral("projectDescription"));
    const QCheckBox *const open
        = form->addCheck(tr("Open it at once"), QStringLiteral("projectOpen"), true);
    form->setValidation([this, name, open, taken] {
        const QString refusal = refusals::ofName(name->text(), taken);
        return refusal.isEmpty() && open->isChecked() ? refusalNow() : refusal;
    });
    form->onAccepted([this, name, description, open] {
        create(name->text().trimmed(), description->text().trimmed(), open->isChecked());
    });
    form->open();
}

void ProjectsPage::create(const QString &name, const QString &description, bool open)
{
    work(tr("Creating the project"), [this, name, description, open] {
        const int code = zepletInterface()->createProject(name, description, open);
        tell(refusals::ofCreate(code, name),
             tr("The project \"%1\" is there.").arg(kit::shortened(name)));
        refresh();
        m_table->choose(name);
    });
}

void ProjectsPage::open(const QString &name)
{
    const Project *const project = find(name);
    if (!project || project->open)
        return;
    const QString refusal = refusalNow();
    if (!refusal.isEmpty())
        return say(Tone::Warning, refusal);
    work(tr("Opening the project"), [this, name] {
        const int code = zepletInterface()->changeProject(name);
        tell(refusals::ofOpen(code, name),
             tr("The project \"%1\" is open.").arg(kit::shortened(name)));
    });
}

void ProjectsPage::askToRemove(const QString &name)
{
    const Project *const project = find(name);
    if (!project)
        return;
    const QString refusal = project->open ? refusalNow() : QString();
    if (!refusal.isEmpty())
        return say(Tone::Warning, refusal);
    QString text = tr("All its points, variables and programs are deleted on this panel. They "
                      "can't be brought back.");
    if (project->open)
        text += QStringLiteral("\n\n") + tr("It is the open project: none is open afterwards.");
    if (project->autoload)
        text += QStringLiteral("\n\n")
            + tr("The controller loads it when it starts: it will load none afterwards.");
    confirm(tr("Remove the project \"%1\"?").arg(kit::shortened(name)), text, tr("Remove"),
            [this, name] { remove(name); });
}

void ProjectsPage::remove(const QString &name)
{
    work(tr("Removing the project"), [this, name] {
        const int code = zepletInterface()->removeProject(name);
        tell(refusals::ofRemove(code, name),
             tr("The project \"%1\" is removed.").arg(kit::shortened(name)));
    });
}

void ProjectsPage::tell(const QString &refusal, const QString &done)
{
    say(refusal.isEmpty() ? Tone::Ok : Tone::Error, refusal.isEmpty() ? done : refusal);
}

QString ProjectsPage::refusalNow() const
{
    if (zepletInterface()->getRobotConnected()
        && zepletInterface()->getRobotPhyStatus() == QLatin1String("program"))
        return tr("A program of the open project is running: stop it first, on the page \"Run\".");
    return QString();
}

const Project *ProjectsPage::find(const QString &name) const
{
    for (const Project &project : m_projects) {
        if (project.name == name)
            return &project;
    }
    return nullptr;
}
