#include "variablespage.h"

#include "kit/form.h"
#include "kit/noticeline.h"
#include "kit/table.h"
#include "livevalues.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHideEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <zeplet/interface/interfacemanager.h>

using kit::Tone;
using zeplet::zepletInterface;

namespace
{

constexpr int TypeWidth = 140;
constexpr int MarkWidth = 130;
constexpr int LiveWidth = 150;
constexpr VariableKind Kinds[]
    = {VariableKind::Integer, VariableKind::Number, VariableKind::Text, VariableKind::Flag};

QStringList flags()
{
    return {valueText(false), valueText(true)};
}

kit::Row rowOf(const Variable &variable, const QString &live)
{
    kit::Cell name;
    name.text = variable.name;
    name.hint = variable.description;
    kit::Cell type;
    type.text = kindName(variable.kind());
    type.hint = canBeChanged(variable.kind()) ? QString() : variable.type;
    kit::Cell value;
    value.text = valueText(variable.value);
    value.tone = canBeChanged(variable.kind()) ? Tone::Plain : Tone::Muted;
    kit::Cell persistent;
    if (variable.persistent)
        persistent.marks.append({VariablesPage::tr("Persistent"), Tone::Accent});
    kit::Cell running;
    running.text = live.isNull() ? QStringLiteral("–") : live.simplified();
    running.tone = live.isNull() ? Tone::Muted : Tone::Ok;
    return {variable.name, {name, type, value, persistent, running}};
}

/** A field for each kind of value; the one that fits is shown. */
struct ValueField {
    QLineEdit *text;
    QComboBox *flag;

    explicit ValueField(kit::Form *form, const QString &value = QString())
        : text(form->addText(VariablesPage::tr("Value"), QStringLiteral("variableValue"), value))
        , flag(form->addChoice(QString(), QStringLiteral("variableFlag"), flags()))
    {
        flag->setCurrentText(value);
    }

    void showFor(VariableKind kind) const
    {
        text->setVisible(kind != VariableKind::Flag);
        flag->setVisible(kind == VariableKind::Flag);
    }

    QVariant read(VariableKind kind, QString *refusal) const
    {
        return valueFrom(kind == VariableKind::Flag ? flag->currentText() : text->text(), kind,
                         refusal);
    }
};

} // namespace

VariablesPage::VariablesPage(QWidget *parent)
    : Page(
        pluginName(), [] { return tr("Variables"); }, parent)
    , m_live(new LiveValues(pluginName(), this))
    , m_unsupported(new kit::NoticeLine(kit::NoticeLine::Kept, this))
    , m_table(new kit::Table(
          [] {
              return QStringList {tr("Variable"), tr("Type"), tr("Value"), tr("Kept"),
                                  tr("On the controller")};
          },
          this))
    , m_save(addButton([] { return tr("Save again"); }, QStringLiteral("saveVariables")))
    , m_change(addButton([] { return tr("Change"); }, QStringLiteral("changeVariable")))
    , m_delete(addButton([] { return tr("Delete"); }, QStringLiteral("deleteVariable")))
    , m_add(addButton([] { return tr("New variable"); }, QStringLiteral("newVariable"),
                      QStringLiteral("primary")))
{
    m_table->setObjectName(QStringLiteral("variables"));
    m_table->setWidths({0, TypeWidth, 0, MarkWidth, LiveWidth});
    m_save->hide();
    body()->addWidget(m_unsupported);
    body()->addWidget(m_table, 1);
    connect(m_add, &QPushButton::clicked, this, &VariablesPage::askForNew);
    connect(m_change, &QPushButton::clicked, this, &VariablesPage::askToChange);
    connect(m_delete, &QPushButton::clicked, this, &VariablesPage::askToDelete);
    connect(m_save, &QPushButton::clicked, this, &VariablesPage::saveAgain);
    connect(m_table, &kit::Table::opened, this, &VariablesPage::askToChange);
    connect(m_table, &kit::Table::currentKeyChanged, this, &VariablesPage::refreshKeys);
    connect(m_live, &LiveValues::changed, this, [this] { refreshSoon(); });
    Page::follow({QStringLiteral("tavik.project.var._list"),
                  QStringLiteral("tavik.project.var.built"),
                  QStringLiteral("tavik.project.cur_project"), QStringLiteral("brisa.r.version")});
}

QString VariablesPage::pluginName()
{
    return QStringLiteral("page-variables");
}

void VariablesPage::refresh()
{
    const QString project = zepletInterface()->getCurProject();
    if (std::exchange(m_project, project) != project)
        m_unsaved = false;
    m_variables = readVariables();
    const bool live = zepletInterface()->getRobotConnected();
    follow(live);
    showRows();
    m_table->setEmptyState(brisa::Glyph::Variable, tr("No variables yet"),
                           live ? tr("\"New variable\" makes the first one of this project.")
                                : tr("They can be made when the controller is connected."));
    setSubtitle(subtitle(live));
    m_save->setVisible(m_unsaved);
    refreshKeys();
}

// The controller forgets what it was asked when its link is lost.
void VariablesPage::follow(bool live)
{
    if (!live) {
        m_live->release();
        m_unsupported->say(Tone::Plain, QString());
        return;
    }
    QStringList persistent;
    for (const Variable &variable : qAsConst(m_variables)) {
        if (variable.persistent)
            persistent.append(variable.name);
    }
    m_live->select(persistent);
    m_unsupported->say(Tone::Plain,
                       m_live->isSupported()
                           ? QString()
                           : tr("This controller does not report values while programs run: its "
                                "version would have to be 2.3, 3.0, 3.1 or 3.2."));
}

void VariablesPage::showRows()
{
    const bool live = zepletInterface()->getRobotConnected() && m_live->isSupported();
    QVector<kit::Row> rows;
    rows.reserve(m_variables.size());
    for (const Variable &variable : qAsConst(m_variables))
        rows.append(rowOf(variable,
                          live && variable.persistent ? m_live->value(variable.name) : QString()));
    m_table->setRows(rows);
}

QString VariablesPage::subtitle(bool live) const
{
    const QString name = m_project.section('/', -1);
    if (!live)
        return tr("No link to the controller: nothing can be changed");
    if (name.isEmpty())
        return tr("No project is open: these variables belong to none");
    return tr("Project %1, variables: %2").arg(name, QString::number(m_variables.size()));
}

void VariablesPage::refreshKeys()
{
    const bool live = zepletInterface()->getRobotConnected();
    const Variable *const variable = chosen();
    const bool can = live && variable && variable->kind() != VariableKind::Connection;
    m_add->setEnabled(live);
    m_save->setEnabled(live);
    m_change->setEnabled(can && canBeChanged(variable->kind()));
    m_delete->setEnabled(can);
}

void VariablesPage::hideEvent(QHideEvent *event)
{
    if (!event->spontaneous())
        m_live->release();
    Page::hideEvent(event);
}

void VariablesPage::askForNew()
{
    QStringList taken;
    for (const Variable &variable : qAsConst(m_variables))
        taken.append(variable.name);
    auto *const form = new kit::Form(this, tr("New variable"), tr("Create"));
    const QLineEdit *const name = form->addText(tr("Name"), QStringLiteral("variableName"));
    QStringList kinds;
    for (const VariableKind kind : Kinds)
        kinds.append(kindName(kind));
    const QComboBox *const choice
        = form->addChoice(tr("Type"), QStringLiteral("variableType"), kinds);
    const ValueField field(form);
    const QCheckBox *const persistent = form->addCheck(tr("Persistent: programs keep its changes"),
                                                       QStringLiteral("variablePersistent"));
    const auto kind = [choice] { return Kinds[choice->currentIndex()]; };
    form->setValidation([=] {
        field.showFor(kind());
        if (name->text().trimmed().isEmpty())
            return tr("The variable needs a name.");
        if (taken.contains(name->text().trimmed()))
            return tr("There is a variable \"%1\" already: choose another name, or change that "
                      "one.")
                .arg(name->text().trimmed());
        QString refusal;
        field.read(kind(), &refusal);
        return refusal;
    });
    form->onAccepted([=] {
        QString refusal;
        add(name->text().trimmed(), field.read(kind(), &refusal), persistent->isChecked());
    });
    form->open();
}

void VariablesPage::askToChange()
{
    if (!m_change->isEnabled())
        return;
    const Variable variable = *chosen();
    const QString value
        = variable.value.isString() ? variable.value.toString() : valueText(variable.value);
    auto *const form = new kit::Form(this, tr("Change \"%1\"").arg(variable.name), tr("Save"));
    const ValueField field(form, value);
    field.showFor(variable.kind());
    form->setValidation([=] {
        QString refusal;
        field.read(variable.kind(), &refusal);
        return refusal;
    });
    form->onAccepted([=] {
        QString refusal;
        change(variable.name, field.read(variable.kind(), &refusal));
    });
    form->open();
}

void VariablesPage::askToDelete()
{
    if (!m_delete->isEnabled())
        return;
    const QString name = chosen()->name;
    confirm(tr("Delete the variable \"%1\"?").arg(name),
            tr("Its value is lost, and programs that use it fail."), tr("Delete"),
            [this, name] { remove(name); });
}

void VariablesPage::add(const QString &name, const QVariant &value, bool persistent)
{
    work(tr("Creating \"%1\"").arg(name), [=] {
        if (refuseWithoutLink())
            return;
        if (zepletInterface()->addVarData(name, value, persistent)) {
            tellDone(tr("The variable \"%1\" is there.").arg(name));
        } else if (readVariable(name).name.isEmpty()) {
            say(Tone::Error,
                tr("The controller did not take \"%1\", and it was not made: the name may "
                   "be in use there, or the value may not fit. Choose another one.")
                    .arg(name));
        } else {
            tellUnsaved(name);
        }
        refresh();
        m_table->choose(name);
    });
}

void VariablesPage::change(const QString &name, const QVariant &value)
{
    work(tr("Changing \"%1\"").arg(name), [=] {
        if (refuseWithoutLink())
            return;
        if (zepletInterface()->updateVarData(name, value))
            return tellDone(tr("\"%1\" has its new value.").arg(name));
        const Variable now = readVariable(name);
        if (now.name.isEmpty())
            say(Tone::Error,
                tr("The variable \"%1\" is no longer in the project, and nothing was "
                   "changed: choose another one.")
                    .arg(name));
        else if (now.value != QJsonValue::fromVariant(value))
            say(Tone::Error,
                tr("The controller did not take the new value, and \"%1\" has its old one: "
                   "a program may use it, or the value may not fit. Check both, and try "
                   "again.")
                    .arg(name));
        else
            tellUnsaved(name);
    });
}

void VariablesPage::remove(const QString &name)
{
    work(tr("Deleting \"%1\"").arg(name), [=] {
        if (refuseWithoutLink())
            return;
        if (zepletInterface()->delVarData(name))
            return tellDone(tr("\"%1\" is deleted.").arg(name));
        if (readVariable(name).name.isEmpty())
            return tellUnsaved(name);
        say(Tone::Error,
            tr("The controller did not let go of \"%1\", and it stays: a program may use "
               "it. Stop the program, check the link, and try again.")
                .arg(name));
    });
}

// The file goes out as a whole with any change: a variable gets the value that it has.
void VariablesPage::saveAgain()
{
    for (const Variable &variable : qAsConst(m_variables)) {
        if (canBeChanged(variable.kind()))
            return change(variable.name, variable.value.toVariant());
    }
    say(Tone::Warning,
        tr("There is no variable left to save: the next one that is made saves all."));
}

void VariablesPage::tellDone(const QString &sentence)
{
    m_unsaved = false;
    say(Tone::Ok, sentence);
}

void VariablesPage::tellUnsaved(const QString &name)
{
    m_unsaved = true;
    say(Tone::Error,
        tr("\"%1\" is changed on the panel and in the running controller, but not saved "
           "there: check the network to it and the space on the panel's disk, then "
           "save again.")
            .arg(name));
}

bool VariablesPage::refuseWithoutLink()
{
    if (zepletInterface()->getRobotConnected())
        return false;
    say(Tone::Error,
        tr("There is no link to the controller, and nothing was changed: try again when "
           "it is connected."));
    return true;
}

const Variable *VariablesPage::chosen() const
{
    const QString key = m_table->currentKey();
    for (const Variable &variable : m_variables) {
        if (!key.isEmpty() && variable.name == key)
            return &variable;
    }
    return nullptr;
}
