#include "weldform.h"

#include <ostrel/moduleobject.h>
#include <zeplet/zeplet.h>

#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

using zeplet::zepletInterface;

namespace
{
constexpr int touchHeight = 56; // 9 mm on the panel and more

// A seam ends at a pose; joint targets are none.
QStringList robotTargets()
{
    QStringList names;
    for (const QString &name : zepletInterface()->getPointNameList()) {
        if (zepletInterface()->getPointObjDataByName(name)["property"] != QLatin1String("joint"))
            names.append(name);
    }
    return names;
}
} // namespace

WeldForm::WeldForm(const WeldInstruction &instruction, QWidget *parent)
    : RLContentBase(parent)
    , m_instruction(instruction)
{
    auto *layout = new QFormLayout(this);
    layout->setRowWrapPolicy(QFormLayout::DontWrapRows);
    layout->setContentsMargins(0, 0, 0, 0); // the dialog around it has its own
    layout->setVerticalSpacing(12);
    layout->setHorizontalSpacing(24);
    createFields(layout);
    m_problem = new QLabel;
    m_problem->setObjectName("problem");
    m_problem->setProperty("role", "error");
    m_problem->setTextFormat(Qt::PlainText); // a name is no markup
    m_problem->setWordWrap(true);
    m_problem->setMinimumHeight(touchHeight); // nothing moves when it says something
    layout->addRow(m_problem);
    translate();
    FillWith(m_instruction.standardText());
}

void WeldForm::createFields(QFormLayout *layout)
{
    if (m_instruction.hasTarget) {
        m_target = new QComboBox;
        m_target->setObjectName("target");
        m_target->setMinimumHeight(touchHeight);
        m_targetLabel = new QLabel;
        m_targetLabel->setMinimumHeight(touchHeight); // on a level with the field
        layout->addRow(m_targetLabel, m_target);
        connect(m("tavik.project.point._list"), &ostrel::ModuleObject::changed, this,
                [this] { offerTargets(m_target->currentText()); });
    }
    for (const WeldParameter &parameter : m_instruction.parameters) {
        auto *value = new QLineEdit;
        value->setObjectName(parameter.key);
        value->setMinimumHeight(touchHeight);
        value->setInputMethodHints(Qt::ImhFormattedNumbersOnly);
        auto *label = new QLabel;
        label->setBuddy(value);
        label->setMinimumHeight(touchHeight);
        layout->addRow(label, value);
        m_values.append(value);
        m_labels.append(label);
        connect(value, &QLineEdit::textEdited, this, [this] { m_problem->clear(); });
    }
}

void WeldForm::changeEvent(QEvent *event)
{
    RLContentBase::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        translate();
}

void WeldForm::translate()
{
    if (m_targetLabel)
        m_targetLabel->setText(tr("Robot target"));
    for (int i = 0; i < m_labels.size(); ++i) {
        const WeldParameter &parameter = m_instruction.parameters.at(i);
        m_labels[i]->setText(tr("%1 (%2)").arg(weldText(parameter.label), parameter.unit));
        m_values[i]->setPlaceholderText(
            tr("%1 to %2").arg(parameter.smallest).arg(parameter.largest));
    }
    if (!m_problem->text().isEmpty())
        checkLine();
}

// A text that is no such line changes nothing.
void WeldForm::FillWith(const QString &text)
{
    if (!m_line.read(m_instruction, text))
        return;
    for (int i = 0; i < m_values.size(); ++i)
        m_values[i]->setText(m_line.values.value(i));
    if (m_target)
        offerTargets(m_line.target);
    m_problem->clear();
}

// A target that the project has not is shown all the same: it must not turn into another one.
void WeldForm::offerTargets(const QString &chosen)
{
    QStringList names = robotTargets();
    if (!chosen.isEmpty() && !names.contains(chosen))
        names.prepend(chosen);
    m_target->clear();
    m_target->addItems(names);
    m_target->setCurrentIndex(m_target->findText(chosen));
}

QString WeldForm::ToString()
{
    return entered().text(m_instruction);
}

WeldLine WeldForm::entered() const
{
    WeldLine line = m_line;
    line.target = m_target ? m_target->currentText() : QString();
    for (int i = 0; i < m_values.size(); ++i)
        line.values[i] = number(i);
    return line;
}

// Programs write a point, and many people a comma.
QString WeldForm::number(int place) const
{
    return m_values.at(place)->text().trimmed().replace(QLatin1Char(','), QLatin1Char('.'));
}

bool WeldForm::CheckInsert()
{
    return checkLine();
}

bool WeldForm::CheckReplace()
{
    return checkLine();
}

bool WeldForm::checkLine()
{
    QWidget *field = nullptr;
    const QString text = problem(&field);
    m_problem->setText(text);
    if (field)
        field->setFocus();
    return text.isEmpty();
}

// The first thing that is wrong, with its remedy, and where it is; empty: nothing.
QString WeldForm::problem(QWidget **field) const
{
    for (int i = 0; i < m_values.size(); ++i) {
        *field = m_values.at(i);
        QString text = numberProblem(i);
        if (!text.isEmpty())
            return text;
    }
    *field = m_target;
    if (!m_target)
        return QString();
    const QString name = m_target->currentText();
    if (!robotTargets().contains(name))
        return tr("The project has no robot target \"%1\". Choose one, or teach it first.")
            .arg(name);
    WeldLine line;
    if (!line.read(m_instruction, entered().text(m_instruction)) || line.target != name)
        return tr("A program can't use the name \"%1\". Rename the target without commas.")
            .arg(name);
    *field = nullptr;
    return QString();
}

QString WeldForm::numberProblem(int place) const
{
    const WeldParameter &parameter = m_instruction.parameters.at(place);
    const QString label = weldText(parameter.label);
    if (!QRegularExpression(R"(^-?\d+(?:\.\d+)?$)").match(number(place)).hasMatch())
        return tr("%1 has to be a number such as %2.").arg(label, parameter.standard);
    const double value = number(place).toDouble();
    if (value >= parameter.smallest && value <= parameter.largest)
        return QString();
    return tr("%1 has to be from %2 to %3 %4.")
        .arg(label, QString::number(parameter.smallest), QString::number(parameter.largest),
             parameter.unit);
}
