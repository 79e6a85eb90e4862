#include "programtext.h"

#include <QCoreApplication>
#include <algorithm>

namespace programtext
{

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(program)
};

constexpr int MostLines = 1000; // that one instruction may have

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t');
}

QString indentationOf(const QString &line)
{
    const auto end = std::find_if_not(line.begin(), line.end(), isBlank);
    return line.left(static_cast<int>(end - line.begin()));
}

/** Where the comment begins, or -1. Two slashes within a text in quotes are none. */
int commentIn(const QString &line)
{
    bool quoted = false;
    for (int i = 0; i < line.size(); ++i) {
        if (line.at(i) == QLatin1Char('"'))
            quoted = !quoted;
        else if (!quoted && line.midRef(i, 2) == QLatin1String("//"))
            return i;
    }
    return -1;
}

/** The comment with the blanks before it. */
QString commentOf(const QString &line)
{
    int start = commentIn(line);
    if (start < 0)
        return QString();
    while (start > 0 && isBlank(line.at(start - 1)))
        --start;
    return line.mid(start);
}

bool endsInReturn(const QString &line)
{
    return line.endsWith(QLatin1Char('\r'));
}

void indent(QStringList *lines, const QString &model)
{
    const QString indentation = indentationOf(model);
    const bool ownIndentation = !indentationOf(lines->first()).isEmpty();
    for (QString &line : *lines) {
        if (!ownIndentation && !line.isEmpty())
            line.prepend(indentation);
        if (endsInReturn(model))
            line.append(QLatin1Char('\r'));
    }
}

bool isControl(QChar c)
{
    return c.category() == QChar::Other_Control && c != QLatin1Char('\t');
}

} // namespace

QStringList linesOf(const QByteArray &content)
{
    QStringList lines = QString::fromUtf8(content).split(QLatin1Char('\n'));
    const QString last = lines.takeLast();
    if (last.isEmpty())
        return lines;
    const bool returns = !lines.isEmpty() && endsInReturn(lines.last()) && !endsInReturn(last);
    lines.append(returns ? last + QLatin1Char('\r') : last);
    return lines;
}

QByteArray contentOf(const QStringList &lines)
{
    QByteArray content;
    for (const QString &line : lines)
        content += line.toUtf8() + '\n';
    return content;
}

QString shown(const QString &line)
{
    return endsInReturn(line) ? line.chopped(1) : line;
}

Kind kindOf(const QString &line)
{
    const QString trimmed = line.trimmed();
    if (trimmed.isEmpty())
        return Kind::Empty;
    return trimmed.startsWith(QLatin1String("//")) ? Kind::Comment : Kind::Code;
}

QStringList given(const QString &text, QString *refusal)
{
    QString plain = text;
    plain.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    while (plain.endsWith(QLatin1Char('\n')))
        plain.chop(1);
    QStringList lines = plain.split(QLatin1Char('\n'));
    for (const QString &line : qAsConst(lines)) {
        if (line.size() > LongestLine)
            *refusal = Texts::tr("A line has at most %1 characters: shorten it.").arg(LongestLine);
        else if (std::any_of(line.begin(), line.end(), isControl))
            *refusal = Texts::tr("It holds characters that are no text: leave them out.");
    }
    if (lines.size() > MostLines)
        *refusal = Texts::tr("One instruction has at most %1 lines.").arg(MostLines);
    if (plain.trimmed().isEmpty())
        *refusal = Texts::tr("There is no text: fill in what is missing.");
    return lines;
}

QStringList replacement(const QString &old, QStringList lines)
{
    if (commentIn(lines.first()) < 0)
        lines.first() += commentOf(shown(old));
    indent(&lines, old);
    return lines;
}

QStringList insertion(const QString &before, QStringList lines)
{
    indent(&lines, before);
    return lines;
}

} // namespace programtext
