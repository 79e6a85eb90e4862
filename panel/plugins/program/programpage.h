#pragma once

#include "kit/page.h"
#include "programfolder.h"

#include <QHash>

class Instructions;
class ProgramView;
class QComboBox;
class StateLine;

/**
 * The programs of the open project, edited line by line with the instructions that plugins brought.
 * What is shown is always what the panel's disk has: an edit that can't be saved is not made. To
 * the controller a program goes when the operator sends it, and never while one runs there.
 */
class ProgramPage : public kit::Page
{
    Q_OBJECT

public:
    explicit ProgramPage(QWidget *parent = nullptr);

    static QString pluginName();

protected:
    void refresh() override;

private:
    struct Version {
        QByteArray content;
        int row;
    };
    /** Why it was refused, or nothing. */
    using Edit = std::function<QString(const QStringList &lines)>;

    QWidget *makeKeys();
    QPushButton *makeKey(const char *objectName, void (ProgramPage::*act)());
    void setTexts();
    void setIcons();

    void followProject();
    void readProgram();
    void showProgram(const QByteArray &content, int row);
    void refreshChoice();
    void refreshState();
    void refreshKeys();

    bool isRunning() const;
    bool isChangedElsewhere() const;
    QString change(const QStringList &lines, int row);
    /** Saves the text and shows it; where nothing was changed, the reason, which is told too. */
    QString save(const QByteArray &content, int row);
    QString refuse(kit::Tone tone, const QString &sentence);
    QString refuseChanged();
    void remember(const QVector<Version> &versions);
    /** What carries an edit out later, where the line is then still what it is now. A program that
     *  changed elsewhere refuses it once, and is shown. */
    Edit laterAt(const Edit &edit);
    QString insertBehind(const QStringList &lines);
    QString replaceRow(const QStringList &lines);
    void writeLine(const QString &title, const QString &text, bool inserts);
    void moveRow(int by);

    void chooseProgram();
    void askForName(const QString &title, const QString &acceptText, const QString &name,
                    std::function<void(const QString &name)> named);
    void askForNew();
    void makeProgram(const QString &name);
    void askToRename();
    void renameProgram(const QString &name, const QString &newName);
    void askToDelete();
    void send();
    void insert();
    void editProperties();
    void editText();
    void moveUp() { moveRow(-1); }
    void moveDown() { moveRow(1); }
    void removeRow();
    void undo();

    ProgramFolder m_folder;
    QStringList m_names;
    QString m_name; ///< the program that is shown; empty: none
    QByteArray m_content; ///< of its file
    QStringList m_lines; ///< the same
    QString m_refusal; ///< why the chosen program is not shown
    QVector<Version> m_undo;
    QHash<QString, QString> m_lastNames; ///< by project

    Instructions *m_instructions;
    kit::NoticeLine *m_broken; ///< patterns that can't be used
    kit::NoticeLine *m_running;
    QComboBox *m_choice;
    StateLine *m_state;
    ProgramView *m_view;
    QPushButton *m_new;
    QPushButton *m_rename;
    QPushButton *m_delete;
    QPushButton *m_send;
    QPushButton *m_insert = nullptr;
    QPushButton *m_properties = nullptr;
    QPushButton *m_edit = nullptr;
    QPushButton *m_up = nullptr;
    QPushButton *m_down = nullptr;
    QPushButton *m_remove = nullptr;
    QPushButton *m_undoKey = nullptr;
};
