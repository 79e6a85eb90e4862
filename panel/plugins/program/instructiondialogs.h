#pragma once

#include "instructions.h"
#include "kit/overlay.h"

#include <functional>

class InstructionBox;
class QLabel;
class QPushButton;

namespace kit
{
class Table;
}

/** What dialogs of an instruction share: the plugin's widget, and a sentence below it. */
class InstructionDialog : public kit::Overlay
{
    Q_OBJECT

public:
    /** Takes the lines that the operator made, and finishes the dialog; or returns why they are
     *  refused, and the dialog stays with what is entered. */
    using Accept = std::function<QString(const QStringList &lines)>;

protected:
    InstructionDialog(kit::Page *page, const QString &title, Accept accepted);

    InstructionBox *box() const { return m_box; }
    void say(const QString &sentence);
    /** Checks the text, and ends the dialog with it where it is taken. */
    void accept(const QString &text);

private:
    InstructionBox *m_box;
    QLabel *m_sentence;
    Accept m_accepted;
};

/** Asks which instruction to insert, and then, with the widget of its plugin, how. */
class InsertDialog : public InstructionDialog
{
    Q_OBJECT

public:
    /** instructions has to outlive it. */
    InsertDialog(kit::Page *page, const Instructions *instructions, Accept accepted);

    /** What the operator may write instead is asked elsewhere. */
    void onWriting(std::function<void()> writing);

private:
    QWidget *makeChooser();
    void showTypes();
    void choose();
    void showChooser(bool shown);
    void goOn();
    void insert();

    const Instructions *m_instructions;
    QVector<Instructions::Group> m_groups;
    kit::Table *m_groupTable = nullptr;
    kit::Table *m_typeTable = nullptr;
    QWidget *m_chooser;
    QLabel *m_type;
    QLabel *m_description;
    QPushButton *m_write;
    QPushButton *m_back;
    QPushButton *m_insert;
};

/** Edits the properties of a line with the widget of its plugin. */
class PropertyDialog : public InstructionDialog
{
    Q_OBJECT

public:
    /** Where the plugin's widget can't be had, fault() says why, and it must not be opened. */
    PropertyDialog(kit::Page *page, const Instructions *instructions, const QString &type,
                   const QString &line, Accept accepted);

    QString fault() const { return m_fault; }

private:
    void apply();

    QString m_fault;
};
