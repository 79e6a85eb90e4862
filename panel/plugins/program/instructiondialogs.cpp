#include "instructiondialogs.h"

#include "instructionbox.h"
#include "kit/table.h"
#include "programtext.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <brisa/thememanager.h>

namespace metrics = brisa::metrics;

namespace
{

constexpr int WideCard = 760;
constexpr int GroupsWidth = 220;
constexpr int ListHeight = 392; // six instructions

} // namespace

InstructionDialog::InstructionDialog(kit::Page *page, const QString &title, Accept accepted)
    : Overlay(page, title)
    , m_box(new InstructionBox)
    , m_sentence(new QLabel)
    , m_accepted(std::move(accepted))
{
    m_sentence->setObjectName(QStringLiteral("instructionSentence"));
    m_sentence->setTextFormat(Qt::PlainText);
    m_sentence->setWordWrap(true);
    m_sentence->setProperty("role", QStringLiteral("warning"));
    m_sentence->hide();
    content()->addWidget(m_box);
    content()->addWidget(m_sentence);
}

void InstructionDialog::say(const QString &sentence)
{
    m_sentence->setText(sentence);
    m_sentence->setVisible(!sentence.isEmpty());
}

void InstructionDialog::accept(const QString &text)
{
    QString refusal;
    const QStringList lines = programtext::given(text, &refusal);
    if (refusal.isEmpty())
        refusal = m_accepted(lines);
    if (!refusal.isEmpty())
        return say(refusal);
    finish();
}

InsertDialog::InsertDialog(kit::Page *page, const Instructions *instructions, Accept accepted)
    : InstructionDialog(page, tr("Insert an instruction"), std::move(accepted))
    , m_instructions(instructions)
    , m_groups(instructions->groups())
    , m_chooser(makeChooser())
    , m_type(new QLabel)
    , m_description(new QLabel)
    , m_write(addButton(tr("Write a line"), QStringLiteral("writeLine")))
{
    setObjectName(QStringLiteral("insertDialog"));
    setCardWidth(WideCard);
    m_type->setProperty("role", QStringLiteral("title"));
    m_description->setProperty("role", QStringLiteral("muted"));
    for (QLabel *const label : {m_type, m_description}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    content()->insertWidget(0, m_chooser);
    content()->insertWidget(1, m_type);
    content()->insertWidget(2, m_description);
    m_back = addButton(tr("Back"), QStringLiteral("back"));
    addCancel(tr("Cancel"));
    m_insert = addButton(tr("Insert"), QStringLiteral("insert"), QStringLiteral("primary"));
    connect(m_back, &QPushButton::clicked, this, [this] { showChooser(true); });
    connect(m_insert, &QPushButton::clicked, this, &InsertDialog::goOn);
    showTypes();
    showChooser(true);
}

void InsertDialog::onWriting(std::function<void()> writing)
{
    connect(m_write, &QPushButton::clicked, this, [this, writing = std::move(writing)] {
        finish();
        writing();
    });
}

QWidget *InsertDialog::makeChooser()
{
    auto *const chooser = new QWidget;
    m_groupTable = new kit::Table([] { return QStringList {tr("Group")}; }, chooser);
    m_typeTable = new kit::Table([] { return QStringList {tr("Instruction")}; }, chooser);
    m_groupTable->setObjectName(QStringLiteral("instructionGroups"));
    m_typeTable->setObjectName(QStringLiteral("instructionTypes"));
    m_groupTable->setFixedWidth(GroupsWidth);
    for (kit::Table *const table : {m_groupTable, m_typeTable})
        table->setWidths({0});
    m_typeTable->setEmptyState(brisa::Glyph::Plugin, tr("No instructions"),
                               tr("They come with plugins. \"Write a line\" takes any text."));
    QVector<kit::Row> rows;
    for (int i = 0; i < m_groups.size(); ++i) {
        kit::Cell cell;
        cell.text = m_groups.at(i).title;
        rows.append({QString::number(i), {cell}});
    }
    m_groupTable->setRows(rows);
    m_groupTable->choose(QStringLiteral("0"));
    auto *const row = new QHBoxLayout(chooser);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::Grid);
    row->addWidget(m_groupTable);
    row->addWidget(m_typeTable, 1);
    chooser->setFixedHeight(ListHeight);
    connect(m_groupTable, &kit::Table::currentKeyChanged, this, &InsertDialog::showTypes);
    connect(m_typeTable, &kit::Table::currentKeyChanged, this, &InsertDialog::choose);
    connect(m_typeTable, &kit::Table::opened, this, &InsertDialog::goOn);
    return chooser;
}

void InsertDialog::showTypes()
{
    const Instructions::Group group = m_groups.value(m_groupTable->currentKey().toInt());
    QVector<kit::Row> rows;
    for (const QString &type : group.types) {
        kit::Cell cell;
        cell.text = type;
        cell.hint = m_instructions->description(type).simplified();
        rows.append({type, {cell}});
    }
    m_typeTable->setRows(rows);
}

void InsertDialog::choose()
{
    const QString type = m_typeTable->currentKey();
    const bool asks = m_instructions->insertWidget(type);
    m_insert->setText(asks ? tr("Continue") : tr("Insert"));
    m_insert->setEnabled(!type.isEmpty());
    say(QString());
}

void InsertDialog::showChooser(bool shown)
{
    const QString type = m_typeTable->currentKey();
    m_chooser->setVisible(shown);
    m_write->setVisible(shown);
    m_back->setVisible(!shown);
    box()->setVisible(!shown);
    m_type->setText(type);
    m_type->setVisible(!shown);
    m_description->setText(m_instructions->description(type));
    m_description->setVisible(!shown && !m_description->text().isEmpty());
    if (shown)
        choose();
    else
        m_insert->setText(tr("Insert"));
}

void InsertDialog::goOn()
{
    if (!m_chooser->isVisible())
        return insert();
    const QString type = m_typeTable->currentKey();
    if (type.isEmpty())
        return;
    const auto *const maker = m_instructions->insertWidget(type);
    if (!maker && m_instructions->text(type).isEmpty())
        return say(tr("\"%1\" can't be inserted: its plugin gave neither a widget nor a text. "
                      "Write the line instead.")
                       .arg(type));
    if (!maker)
        return accept(m_instructions->text(type));
    const QString fault = box()->make(*maker);
    if (!fault.isEmpty())
        return say(tr("\"%1\" can't be inserted: %2. Write the line instead.").arg(type, fault));
    say(QString());
    showChooser(false);
}

void InsertDialog::insert()
{
    const QString type = m_typeTable->currentKey();
    bool will = false;
    QString fault = box()->checkInsert(&will);
    if (fault.isEmpty() && !will)
        return say(tr("It can't be inserted yet: correct what is entered."));
    QString text;
    if (fault.isEmpty())
        fault = box()->read(&text);
    if (!fault.isEmpty())
        return say(tr("\"%1\" can't be inserted: %2. Write the line instead.").arg(type, fault));
    // An instruction without anything to enter says nothing itself.
    accept(text.isEmpty() ? m_instructions->text(type) : text);
}

PropertyDialog::PropertyDialog(kit::Page *page, const Instructions *instructions,
                               const QString &type, const QString &line, Accept accepted)
    : InstructionDialog(page, type, std::move(accepted))
{
    setObjectName(QStringLiteral("propertyDialog"));
    setCardWidth(WideCard);
    const QString description = instructions->description(type);
    if (!description.isEmpty()) {
        QLabel *const label = addParagraph(description);
        label->setProperty("role", QStringLiteral("muted"));
        content()->removeWidget(label);
        content()->insertWidget(0, label);
    }
    addCancel(tr("Cancel"));
    const QPushButton *const button
        = addButton(tr("Apply"), QStringLiteral("apply"), QStringLiteral("primary"));
    connect(button, &QPushButton::clicked, this, &PropertyDialog::apply);
    const auto *const maker = instructions->propertyWidget(type);
    m_fault = maker ? box()->make(*maker) : tr("its plugin has no widget for that");
    if (m_fault.isEmpty())
        m_fault = box()->fill(line);
}

void PropertyDialog::apply()
{
    bool will = false;
    QString fault = box()->checkReplace(&will);
    if (fault.isEmpty() && !will)
        return say(tr("It can't be applied yet: correct what is entered."));
    QString text;
    if (fault.isEmpty())
        fault = box()->read(&text);
    if (!fault.isEmpty())
        return say(tr("The line stays as it is: %1. Edit its text instead.").arg(fault));
    if (text.isEmpty() && box()->isBare())
        return finish(); // nothing was entered, nothing changes
    accept(text);
}
