#pragma once

#include <QJsonValue>
#include <QString>
#include <QVariant>
#include <QVector>

/** What the page can make and change; Other is only shown. */
enum class VariableKind { Integer, Number, Text, Flag, Connection, Other };

/** One variable of the open project. */
struct Variable {
    QString name;
    QString description;
    QString type; ///< as the project names it
    QJsonValue value;
    bool persistent = false;

    VariableKind kind() const;
};

/** The variables in the order in which they were made. */
QVector<Variable> readVariables();
/** The variable of exactly that name; one without a name where there is none. */
Variable readVariable(const QString &name);

QString kindName(VariableKind kind);
bool canBeChanged(VariableKind kind);
/** For people; one line. */
QString valueText(const QJsonValue &value);

/** The value that someone wrote, of the type that the kind has; invalid, with a sentence, where it
 *  is none. */
QVariant valueFrom(const QString &text, VariableKind kind, QString *refusal);
