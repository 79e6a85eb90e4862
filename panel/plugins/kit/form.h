#pragma once

#include "overlay.h"

#include <functional>

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace kit
{

/**
 * An overlay that asks for values. Whenever one changes, validate says in a sentence what is wrong
 * and what to do, or nothing; only then can it be accepted. Accepting it may be refused in a
 * sentence, too: it stays with what is entered. Else it finishes and calls back, while its fields
 * can still be read.
 */
class Form : public Overlay
{
    Q_OBJECT

public:
    Form(Page *page, const QString &title, const QString &acceptText);

    /** Adds a field with its label above it. */
    QLineEdit *addText(const QString &label, const QString &objectName,
                       const QString &value = QString());
    QComboBox *addChoice(const QString &label, const QString &objectName,
                         const QStringList &choices);
    QCheckBox *addCheck(const QString &label, const QString &objectName, bool checked = false);
    /** Adds any other field; its changes are told with check(). */
    void addField(const QString &label, QWidget *field);

    void setValidation(std::function<QString()> validate);
    /** Returns why it is refused, or nothing. */
    void onAccepting(std::function<QString()> accepting);
    void onAccepted(std::function<void()> accepted);

    /** Reads the fields anew. */
    void check();

private:
    void say(const QString &sentence);
    void touched();
    void accept();

    std::function<QString()> m_validate;
    std::function<QString()> m_accepting;
    std::function<void()> m_accepted;
    QLabel *m_sentence;
    QPushButton *m_accept;
    bool m_touched = false; ///< nothing is wrong yet with a form that nobody has written in
};

} // namespace kit
