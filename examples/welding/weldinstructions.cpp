#include "weldinstructions.h"

#include <QCoreApplication>
#include <QRegularExpression>

QString WeldInstruction::pattern() const
{
    QStringList arguments;
    if (hasTarget)
        arguments.append(R"(([^\s,][^,]*?))");
    for (const WeldParameter &parameter : parameters)
        arguments.append(QString(R"(%1\s*=\s*(-?\d+(?:\.\d+)?))").arg(parameter.key));
    const QString all = arguments.isEmpty() ? QString() : R"(\s+)" + arguments.join(R"(\s*,\s*)");
    return QString(R"(^(\s*)%1%2\s*(//.*)?$)").arg(type, all);
}

QString WeldInstruction::skeleton() const
{
    WeldLine line;
    line.target = "<target>";
    for (const WeldParameter &parameter : parameters)
        line.values.append(QString("<%1>").arg(parameter.unit));
    return line.text(*this);
}

QString WeldInstruction::standardText() const
{
    WeldLine line;
    line.target = "target";
    for (const WeldParameter &parameter : parameters)
        line.values.append(parameter.standard);
    return line.text(*this);
}

bool WeldLine::read(const WeldInstruction &instruction, const QString &text)
{
    const auto match = QRegularExpression(instruction.pattern()).match(text);
    if (!match.hasMatch())
        return false;
    int capture = 1;
    indentation = match.captured(capture++);
    target = instruction.hasTarget ? match.captured(capture++) : QString();
    values.clear();
    for (int i = 0; i < instruction.parameters.size(); ++i)
        values.append(match.captured(capture++));
    comment = match.captured(capture);
    return true;
}

QString WeldLine::text(const WeldInstruction &instruction) const
{
    QStringList arguments;
    if (instruction.hasTarget)
        arguments.append(target);
    for (int i = 0; i < instruction.parameters.size(); ++i)
        arguments.append(QString("%1=%2").arg(instruction.parameters.at(i).key, values.value(i)));
    QString line = indentation + instruction.type;
    if (!arguments.isEmpty())
        line += ' ' + arguments.join(", ");
    return comment.isEmpty() ? line : line + ' ' + comment;
}

const QVector<WeldInstruction> &weldInstructions()
{
    static const QVector<WeldInstruction> instructions {
        {"ArcStart",
         QT_TRANSLATE_NOOP("Welding", "Lets the gas flow, then lights the arc."),
         false,
         {{"current", QT_TRANSLATE_NOOP("Welding", "Current"), "A", 20, 400, "180"},
          {"voltage", QT_TRANSLATE_NOOP("Welding", "Voltage"), "V", 10, 40, "22.5"},
          {"preflow", QT_TRANSLATE_NOOP("Welding", "Gas pre-flow"), "s", 0, 10, "0.5"}}},
        {"ArcLinear",
         QT_TRANSLATE_NOOP("Welding", "Welds a straight seam to a target."),
         true,
         {{"speed", QT_TRANSLATE_NOOP("Welding", "Weld speed"), "mm/s", 1, 50, "8"},
          {"weave", QT_TRANSLATE_NOOP("Welding", "Weaving width"), "mm", 0, 20, "0"}}},
        {"ArcEnd",
         QT_TRANSLATE_NOOP("Welding", "Fills the crater, then ends the arc."),
         false,
         {{"crater", QT_TRANSLATE_NOOP("Welding", "Crater fill"), "s", 0, 5, "0.8"}}},
    };
    return instructions;
}

QString weldText(const char *text)
{
    return QCoreApplication::translate("Welding", text);
}
