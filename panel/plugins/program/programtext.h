#pragma once

#include <QByteArray>
#include <QStringList>

/** A program's text: a line per instruction, "//" begins a comment. */
namespace programtext
{

constexpr int LongestLine = 1000; // characters

/** The lines without their line feeds; a carriage return stays with its line. A last line that
 * lacks its end gets that of the line before. */
QStringList linesOf(const QByteArray &content);
QByteArray contentOf(const QStringList &lines);

/** What a person sees of a line: without its carriage return. */
QString shown(const QString &line);

enum class Kind { Empty, Comment, Code };
Kind kindOf(const QString &line);

/** What a plugin or a person gave as text, in lines; a refusal, as a sentence, where it is none. */
QStringList given(const QString &text, QString *refusal);

/** The given lines in place of an old one. They keep its indentation, and its comment where they
 *  have none of their own. */
QStringList replacement(const QString &old, QStringList lines);
/** The given lines as they go behind another one, whose indentation they take. */
QStringList insertion(const QString &before, QStringList lines);

} // namespace programtext
