#include "programpage.h"

#include "instructiondialogs.h"
#include "kit/form.h"
#include "kit/noticeline.h"
#include "linedelegate.h"
#include "programtext.h"
#include "programview.h"
#include "stateline.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <brisa/glyph.h>
#include <brisa/thememanager.h>
#include <brisa/translated.h>
#include <zeplet/interface/interfacemanager.h>

using brisa::Glyph;
using kit::Tone;
using zeplet::zepletInterface;
namespace metrics = brisa::metrics;

namespace
{

constexpr int MostVersions = 200;
constexpr int MostRemembered = 16 * ProgramFolder::LargestFile; // bytes
constexpr int ChoiceWidth = 280;

bool isLive()
{
    return zepletInterface()->getRobotConnected();
}

} // namespace

ProgramPage::ProgramPage(QWidget *parent)
    : Page(
        pluginName(), [] { return tr("Program"); }, parent)
    , m_instructions(new Instructions(this))
    , m_broken(new kit::NoticeLine(kit::NoticeLine::Kept, this))
    , m_running(new kit::NoticeLine(kit::NoticeLine::Kept, this))
    , m_choice(new QComboBox(this))
    , m_state(new StateLine(this))
    , m_view(new ProgramView(m_instructions, this))
    , m_new(addButton([] { return tr("New"); }, QStringLiteral("newProgram")))
    , m_rename(addButton([] { return tr("Rename"); }, QStringLiteral("renameProgram")))
    , m_delete(addButton([] { return tr("Delete"); }, QStringLiteral("deleteProgram")))
    , m_send(addButton([] { return tr("Send to the controller"); }, QStringLiteral("sendProgram"),
                       QStringLiteral("primary")))
{
    m_choice->setObjectName(QStringLiteral("programs"));
    m_choice->setMinimumWidth(ChoiceWidth);
    m_state->setObjectName(QStringLiteral("programState"));
    m_view->setObjectName(QStringLiteral("programLines"));
    m_view->setMinimumHeight(3 * metrics::Touch);
    auto *const row = new QHBoxLayout;
    row->setSpacing(metrics::Margin);
    row->addWidget(m_choice);
    row->addWidget(m_state, 1);
    body()->addWidget(m_running);
    body()->addWidget(m_broken);
    body()->addLayout(row);
    body()->addWidget(m_view, 1);
    body()->addWidget(makeKeys());
    connect(m_new, &QPushButton::clicked, this, &ProgramPage::askForNew);
    connect(m_rename, &QPushButton::clicked, this, &ProgramPage::askToRename);
    connect(m_delete, &QPushButton::clicked, this, &ProgramPage::askToDelete);
    connect(m_send, &QPushButton::clicked, this, &ProgramPage::send);
    connect(m_choice, qOverload<int>(&QComboBox::activated), this, &ProgramPage::chooseProgram);
    connect(m_view, &ProgramView::rowChanged, this, &ProgramPage::refreshKeys);
    connect(m_view, &ProgramView::opened, this, &ProgramPage::editProperties);
    connect(m_instructions, &Instructions::patternFailed, this, &ProgramPage::refreshSoon);
    connect(brisa::ThemeManager::instance(), &brisa::ThemeManager::themeChanged, this,
            &ProgramPage::setIcons);
    brisa::translated(this, [this] { setTexts(); });
    setIcons();
    follow({QStringLiteral("tavik.project.cur_project"), QStringLiteral("brisa.r.state")});
}

QString ProgramPage::pluginName()
{
    return QStringLiteral("page-program");
}

QWidget *ProgramPage::makeKeys()
{
    auto *const keys = new QWidget(this);
    auto *const row = new QHBoxLayout(keys);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::Grid);
    m_insert = makeKey("insertLine", &ProgramPage::insert);
    m_properties = makeKey("editProperties", &ProgramPage::editProperties);
    m_edit = makeKey("editLine", &ProgramPage::editText);
    m_up = makeKey("moveUp", &ProgramPage::moveUp);
    m_down = makeKey("moveDown", &ProgramPage::moveDown);
    m_remove = makeKey("deleteLine", &ProgramPage::removeRow);
    m_undoKey = makeKey("undo", &ProgramPage::undo);
    for (QPushButton *const key : {m_insert, m_properties, m_edit, m_remove, m_undoKey})
        row->addWidget(key, 1);
    for (QPushButton *const key : {m_up, m_down}) {
        key->setFixedWidth(metrics::Touch + metrics::Grid);
        row->insertWidget(row->indexOf(m_remove), key);
    }
    return keys;
}

QPushButton *ProgramPage::makeKey(const char *objectName, void (ProgramPage::*act)())
{
    auto *const key = new QPushButton(this);
    key->setObjectName(QLatin1String(objectName));
    connect(key, &QPushButton::clicked, this, act);
    return key;
}

void ProgramPage::setTexts()
{
    m_insert->setText(tr("Insert"));
    m_properties->setText(tr("Properties"));
    m_edit->setText(tr("Edit text"));
    m_up->setAccessibleName(tr("Move the line up"));
    m_down->setAccessibleName(tr("Move the line down"));
    m_remove->setText(tr("Delete line"));
    m_undoKey->setText(tr("Undo"));
    m_choice->setAccessibleName(tr("Program"));
    m_running->say(Tone::Accent,
                   tr("A program is running, with the text that it had at its start. What you "
                      "change here can be sent when it has stopped."));
    m_running->setVisible(isRunning());
}

void ProgramPage::setIcons()
{
    const brisa::ThemeColours &colours = brisa::ThemeManager::instance()->colours();
    m_up->setIcon(brisa::glyphIcon(Glyph::Up, colours.text, colours.disabledText));
    m_down->setIcon(brisa::glyphIcon(Glyph::Down, colours.text, colours.disabledText));
}

void ProgramPage::refresh()
{
    if (m_instructions->reload())
        m_view->recognise();
    followProject();
    readProgram();
    refreshChoice();
    refreshState();
    refreshKeys();
}

void ProgramPage::followProject()
{
    const ProgramFolder folder = ProgramFolder::ofOpenProject();
    if (folder != m_folder) {
        m_lastNames.insert(m_folder.project(), m_name);
        m_folder = folder;
        m_name = m_lastNames.value(folder.project());
        m_content = QByteArray();
        showProgram(QByteArray(), 0);
    }
}

/** The file is the program: who else changes it must not be overwritten, and is shown. */
void ProgramPage::readProgram()
{
    int left = 0;
    m_names = m_folder.names(&left);
    if (!m_names.contains(m_name)) {
        m_name = m_names.value(0);
        m_content = QByteArray();
        showProgram(QByteArray(), 0);
    }
    m_refusal.clear();
    QByteArray content;
    if (!m_name.isEmpty() && !m_folder.read(m_name, &content, &m_refusal))
        content.clear();
    if (content != m_content)
        showProgram(content, m_view->row());
    setSubtitle(
        !m_folder.isOpen() ? tr("No project is open")
            : left > 0
            ? tr("Project %1; files whose names no program can have: %2")
                  .arg(m_folder.project(), QString::number(left))
            : tr("Project %1, lines: %2").arg(m_folder.project(), QString::number(m_lines.size())));
}

void ProgramPage::showProgram(const QByteArray &content, int row)
{
    m_undo.clear();
    m_content = content;
    m_lines = programtext::linesOf(content);
    m_view->setLines(m_lines, qMax(0, row));
}

void ProgramPage::refreshChoice()
{
    const QSignalBlocker quiet(m_choice);
    QStringList shown;
    for (int i = 0; i < m_choice->count(); ++i)
        shown.append(m_choice->itemText(i));
    if (shown != m_names) {
        m_choice->clear();
        m_choice->addItems(m_names);
    }
    m_choice->setCurrentIndex(m_names.indexOf(m_name));
    if (!m_folder.isOpen())
        m_view->setEmptyState(Glyph::Folder, tr("No project is open"),
                              tr("Open one on the page \"Projects\"."));
    else if (m_name.isEmpty())
        m_view->setEmptyState(Glyph::List, tr("No programs yet"),
                              tr("\"New\" makes the first one of this project."));
    else if (!m_refusal.isEmpty())
        m_view->setEmptyState(Glyph::Warning, tr("It can't be shown"), m_refusal);
    else
        m_view->setEmptyState(Glyph::List, tr("The program is empty"),
                              tr("\"Insert\" makes its first line."));
}

void ProgramPage::refreshState()
{
    QVector<kit::Mark> marks;
    if (!isLive())
        marks.append({tr("No link to the controller"), Tone::Muted});
    if (!m_name.isEmpty() && m_refusal.isEmpty()) {
        switch (m_folder.sent(m_name, m_content)) {
        case ProgramFolder::Sent::Same:
            marks.append({tr("Same text on the controller"), Tone::Ok});
            break;
        case ProgramFolder::Sent::Older:
            marks.append({tr("Other text on the controller"), Tone::Warning});
            break;
        case ProgramFolder::Sent::Never:
            marks.append({tr("Not on the controller yet"), Tone::Warning});
            break;
        }
    }
    m_state->setMarks(marks);
    m_running->setVisible(isRunning());
    const QString broken = m_instructions->problem();
    m_broken->say(Tone::Warning, broken);
}

void ProgramPage::refreshKeys()
{
    const bool shown = !m_name.isEmpty() && m_refusal.isEmpty();
    const int row = m_view->row();
    const bool chosen = shown && row >= 0;
    m_choice->setEnabled(!m_names.isEmpty());
    m_new->setEnabled(m_folder.isOpen());
    m_rename->setEnabled(shown);
    m_delete->setEnabled(!m_name.isEmpty());
    m_send->setEnabled(shown && isLive() && !isRunning());
    m_insert->setEnabled(shown);
    m_properties->setEnabled(
        chosen && !m_instructions->typeOf(programtext::shown(m_lines.value(row))).isEmpty());
    m_edit->setEnabled(chosen);
    m_up->setEnabled(chosen && row > 0);
    m_down->setEnabled(chosen && row + 1 < m_lines.size());
    m_remove->setEnabled(chosen);
    m_undoKey->setEnabled(shown && !m_undo.isEmpty());
}

bool ProgramPage::isRunning() const
{
    return zepletInterface()->getRobotPhyStatus() == QLatin1String("program");
}

bool ProgramPage::isChangedElsewhere() const
{
    QByteArray now;
    QString refusal;
    return ProgramFolder::ofOpenProject() != m_folder || !m_folder.read(m_name, &now, &refusal)
        || now != m_content;
}

QString ProgramPage::change(const QStringList &lines, int row)
{
    return save(programtext::contentOf(lines), row);
}

QString ProgramPage::save(const QByteArray &content, int row)
{
    if (content.size() > ProgramFolder::LargestFile)
        return refuse(Tone::Error,
                      tr("A program has at most 1 MiB, and nothing was changed: divide it."));
    if (isChangedElsewhere())
        return refuseChanged();
    const ProgramFolder::Saved saved = m_folder.write(m_name, content);
    if (saved == ProgramFolder::Saved::No)
        return refuse(Tone::Error,
                      tr("\"%1\" could not be saved, and your change was not made: check the space "
                         "on the panel's disk, and try again.")
                          .arg(m_name));
    say(Tone::Warning,
        saved == ProgramFolder::Saved::Yes
            ? QString()
            : tr("\"%1\" is changed, but the panel's disk did not confirm it: check the disk "
                 "before the panel is switched off.")
                  .arg(m_name));
    const QVector<Version> versions = m_undo + QVector<Version> {{m_content, m_view->row()}};
    showProgram(content, row);
    remember(versions);
    refresh();
    return QString();
}

QString ProgramPage::refuse(Tone tone, const QString &sentence)
{
    say(tone, sentence);
    refresh();
    return sentence;
}

QString ProgramPage::refuseChanged()
{
    return refuse(Tone::Warning,
                  tr("\"%1\" was changed elsewhere meanwhile, and your change was not made: "
                     "look at it, and change it again.")
                      .arg(m_name));
}

/** What can be undone, the latest of it. */
void ProgramPage::remember(const QVector<Version> &versions)
{
    int bytes = 0;
    int kept = 0;
    while (kept < qMin(versions.size(), MostVersions)) {
        bytes += versions.at(versions.size() - 1 - kept).content.size();
        if (bytes > MostRemembered)
            break;
        ++kept;
    }
    m_undo = versions.mid(versions.size() - kept);
}

ProgramPage::Edit ProgramPage::laterAt(const Edit &edit)
{
    const int row = m_view->row();
    return [this, edit, row, line = m_lines.value(row), folder = m_folder, name = m_name,
            content = m_content](const QStringList &lines) mutable {
        if (folder != m_folder || name != m_name || row != m_view->row()
            || line != m_lines.value(row))
            return refuse(Tone::Warning,
                          tr("Another program or line is shown meanwhile, and nothing was changed: "
                             "choose the line, and try again."));
        if (std::exchange(content, m_content) != m_content)
            return refuseChanged();
        const QString refusal = edit(lines);
        content = m_content; // a refusal shows what there is now
        return refusal;
    };
}

QString ProgramPage::insertBehind(const QStringList &lines)
{
    const int row = m_view->row();
    const QStringList added = programtext::insertion(m_lines.value(row), lines);
    return change(m_lines.mid(0, row + 1) + added + m_lines.mid(row + 1), row + added.size());
}

QString ProgramPage::replaceRow(const QStringList &lines)
{
    const int row = m_view->row();
    return change(m_lines.mid(0, row) + lines + m_lines.mid(row + 1), row);
}

void ProgramPage::chooseProgram()
{
    if (m_choice->currentText() == m_name)
        return;
    m_name = m_choice->currentText();
    m_content = QByteArray();
    say(Tone::Plain, QString());
    showProgram(QByteArray(), 0);
    refresh();
}

void ProgramPage::askForName(const QString &title, const QString &acceptText, const QString &name,
                             std::function<void(const QString &)> named)
{
    auto *const form = new kit::Form(this, title, acceptText);
    const QLineEdit *const edit = form->addText(tr("Name"), QStringLiteral("programName"), name);
    form->setValidation(
        [=] { return ProgramFolder::nameRefusal(edit->text().trimmed(), m_names); });
    form->onAccepted([=, folder = m_folder] {
        const QString chosen = edit->text().trimmed();
        // The disk knows better than the page what there is.
        int left = 0;
        const QString refusal = folder == m_folder && folder == ProgramFolder::ofOpenProject()
            ? ProgramFolder::nameRefusal(chosen, folder.names(&left))
            : tr("Another project is open meanwhile, and nothing was changed: try again.");
        say(Tone::Warning, refusal);
        if (refusal.isEmpty())
            named(chosen);
        refresh();
    });
    form->open();
}

void ProgramPage::askForNew()
{
    askForName(tr("New program"), tr("Create"), QString(),
               [this](const QString &name) { makeProgram(name); });
}

void ProgramPage::makeProgram(const QString &name)
{
    if (m_folder.write(name, QByteArray()) == ProgramFolder::Saved::No)
        return say(Tone::Error,
                   tr("\"%1\" could not be made: check the space on the panel's disk.").arg(name));
    m_name = name;
}

void ProgramPage::askToRename()
{
    askForName(tr("Rename program"), tr("Rename"), m_name,
               [this, old = m_name](const QString &name) { renameProgram(old, name); });
}

void ProgramPage::renameProgram(const QString &name, const QString &newName)
{
    if (!m_folder.rename(name, newName))
        return say(Tone::Error,
                   tr("\"%1\" could not be renamed, and keeps its name: check the panel's disk.")
                       .arg(name));
    say(Tone::Ok,
        tr("\"%1\" is now \"%2\" on this panel. What was sent to the controller stays there under "
           "the old name.")
            .arg(name, newName));
    if (m_name == name)
        m_name = newName;
}

void ProgramPage::askToDelete()
{
    const QString name = m_name;
    const ProgramFolder folder = m_folder;
    confirm(tr("Delete the program \"%1\"?").arg(name),
            tr("Its text on this panel is lost. What was sent to the controller stays there."),
            tr("Delete"), [=] {
                if (folder.remove(name))
                    say(Tone::Ok, tr("\"%1\" is deleted on this panel.").arg(name));
                else
                    say(Tone::Error,
                        tr("\"%1\" could not be deleted, and stays: check the panel's disk.")
                            .arg(name));
                refresh();
            });
}

void ProgramPage::send()
{
    const QString name = m_name;
    const ProgramFolder folder = m_folder;
    work(tr("Sending \"%1\"").arg(name), [=] {
        if (name != m_name || isChangedElsewhere())
            say(Tone::Warning,
                tr("\"%1\" was changed elsewhere meanwhile, and was not sent: look at it, and send "
                   "it again.")
                    .arg(name));
        else if (!isLive() || isRunning())
            say(Tone::Warning,
                tr("\"%1\" was not sent: the link is lost, or a program runs. Send it again "
                   "later.")
                    .arg(name));
        else if (folder.send(name))
            say(Tone::Ok, tr("\"%1\" is on the controller.").arg(name));
        else
            say(Tone::Error,
                tr("\"%1\" is saved on this panel, but could not be sent: check the network to "
                   "the controller, then send it again.")
                    .arg(name));
        refresh();
    });
}

void ProgramPage::insert()
{
    const auto accepted = laterAt([this](const QStringList &lines) { return insertBehind(lines); });
    auto *const dialog = new InsertDialog(this, m_instructions, accepted);
    dialog->onWriting([this] { writeLine(tr("Write a line"), QString(), true); });
    dialog->open();
}

void ProgramPage::editProperties()
{
    if (!m_properties->isEnabled())
        return editText();
    const QString line = m_lines.value(m_view->row());
    const QString text = programtext::shown(line);
    const QString type = m_instructions->typeOf(text);
    const auto accepted = laterAt([this, line](const QStringList &lines) {
        return replaceRow(programtext::replacement(line, lines));
    });
    auto *const dialog = new PropertyDialog(this, m_instructions, type, text, accepted);
    if (dialog->fault().isEmpty())
        return dialog->open();
    say(Tone::Warning,
        tr("The properties of \"%1\" can't be shown: %2. Its text can be edited.")
            .arg(type, dialog->fault()));
    delete dialog;
}

void ProgramPage::editText()
{
    const QString text = programtext::shown(m_lines.value(m_view->row()));
    if (text.size() > programtext::LongestLine)
        say(Tone::Warning,
            tr("The line is longer than %1 characters, and can't be edited here: it can be "
               "deleted, and written anew.")
                .arg(programtext::LongestLine));
    else if (m_edit->isEnabled())
        writeLine(tr("Edit line %1").arg(m_view->row() + 1), text, false);
}

void ProgramPage::writeLine(const QString &title, const QString &text, bool inserts)
{
    const auto accepted = laterAt([this, inserts](const QStringList &lines) {
        if (inserts)
            return insertBehind(lines);
        const bool returns = m_lines.value(m_view->row()).endsWith('\r');
        return replaceRow({returns ? lines.first() + '\r' : lines.first()});
    });
    auto *const form = new kit::Form(this, title, inserts ? tr("Insert") : tr("Apply"));
    form->setCardWidth(760);
    QLineEdit *const edit = form->addText(QString(), QStringLiteral("lineText"), text);
    edit->setFont(programFont());
    edit->setMaxLength(programtext::LongestLine);
    form->setValidation([=] {
        QString refusal;
        if (!edit->text().trimmed().isEmpty())
            programtext::given(edit->text(), &refusal);
        return refusal;
    });
    form->onAccepting([=] { return accepted({edit->text()}); });
    form->open();
}

void ProgramPage::moveRow(int by)
{
    const int row = m_view->row();
    if (row < 0 || row + by < 0 || row + by >= m_lines.size())
        return;
    QStringList lines = m_lines;
    lines.move(row, row + by);
    change(lines, row + by);
}

void ProgramPage::removeRow()
{
    QStringList lines = m_lines;
    lines.removeAt(m_view->row());
    change(lines, m_view->row());
}

void ProgramPage::undo()
{
    if (m_undo.isEmpty())
        return;
    QVector<Version> versions = m_undo;
    const Version last = versions.takeLast();
    if (!save(last.content, last.row).isEmpty())
        return;
    m_undo = versions;
    refreshKeys();
}
