#include "form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace kit
{

Form::Form(Page *page, const QString &title, const QString &acceptText)
    : Overlay(page, title)
    , m_sentence(Overlay::addParagraph(QString()))
{
    m_sentence->setObjectName(QStringLiteral("validation"));
    addCancel(tr("Cancel"));
    m_accept = addButton(acceptText, QStringLiteral("accept"), QStringLiteral("primary"));
    connect(m_accept, &QPushButton::clicked, this, &Form::accept);
}

QLineEdit *Form::addText(const QString &label, const QString &objectName, const QString &value)
{
    auto *const edit = new QLineEdit(value);
    edit->setObjectName(objectName);
    addField(label, edit);
    connect(edit, &QLineEdit::textChanged, this, &Form::touched);
    connect(edit, &QLineEdit::returnPressed, this, &Form::accept);
    return edit;
}

QComboBox *Form::addChoice(const QString &label, const QString &objectName,
                           const QStringList &choices)
{
    auto *const box = new QComboBox;
    box->setObjectName(objectName);
    box->addItems(choices);
    addField(label, box);
    connect(box, &QComboBox::currentTextChanged, this, &Form::touched);
    return box;
}

QCheckBox *Form::addCheck(const QString &label, const QString &objectName, bool checked)
{
    auto *const box = new QCheckBox(label);
    box->setObjectName(objectName);
    box->setChecked(checked);
    addField(QString(), box);
    connect(box, &QCheckBox::toggled, this, &Form::touched);
    return box;
}

// Above the sentence, which stays the last.
void Form::addField(const QString &label, QWidget *field)
{
    const int end = content()->count() - 1;
    content()->insertWidget(end, field);
    if (label.isEmpty())
        return;
    auto *const caption = new QLabel(label);
    caption->setProperty("role", QStringLiteral("caption"));
    content()->insertWidget(end, caption);
}

void Form::setValidation(std::function<QString()> validate)
{
    m_validate = std::move(validate);
    check();
}

void Form::onAccepting(std::function<QString()> accepting)
{
    m_accepting = std::move(accepting);
}

void Form::onAccepted(std::function<void()> accepted)
{
    m_accepted = std::move(accepted);
}

void Form::check()
{
    const QString sentence = m_validate ? m_validate() : QString();
    say(sentence);
    m_accept->setEnabled(sentence.isEmpty());
}

void Form::say(const QString &sentence)
{
    m_sentence->setText(sentence);
    m_sentence->setProperty("role", m_touched ? "warning" : "muted");
    m_sentence->style()->unpolish(m_sentence);
    m_sentence->style()->polish(m_sentence);
}

void Form::touched()
{
    m_touched = true;
    check();
}

void Form::accept()
{
    check();
    if (!m_accept->isEnabled())
        return;
    const QString refusal = m_accepting ? m_accepting() : QString();
    if (!refusal.isEmpty())
        return say(refusal);
    finish();
    if (m_accepted)
        m_accepted();
}

} // namespace kit
