#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/** One number of an instruction: how it is written, what it means, and what it may be. */
struct WeldParameter {
    const char *key; ///< as in "current=180"
    const char *label; ///< English; see weldText()
    const char *unit;
    double smallest;
    double largest;
    const char *standard; ///< what a new instruction has
};

/** One instruction of the group. */
struct WeldInstruction {
    const char *type;
    const char *description; ///< English; see weldText()
    bool hasTarget; ///< whether a robot target stands before the numbers
    QVector<WeldParameter> parameters;

    /** The regular expression of its lines; captures are those of WeldLine, in its order. */
    QString pattern() const;
    QString skeleton() const;
    QString standardText() const;
};

/** A line of program text, taken apart. */
struct WeldLine {
    QString indentation;
    QString target;
    QStringList values; ///< a text for each parameter, as it is written
    QString comment; ///< with its "//"

    /** False where the text is no line of that instruction. */
    bool read(const WeldInstruction &instruction, const QString &text);
    QString text(const WeldInstruction &instruction) const;
};

/** The group's instructions, in the order of a seam. */
const QVector<WeldInstruction> &weldInstructions();

/** A text of the tables in the language of the panel. */
QString weldText(const char *text);
