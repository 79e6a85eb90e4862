#pragma once

#include "refusal.h"

#include <QJsonObject>
#include <QMap>
#include <QObject>

namespace simulator
{

/**
 * The variables of the robot programs that the controller knows: those that it has from the start
 * and those of the open project. Only persistent ones keep values that clients may read and change.
 * Lives on the simulator's thread.
 */
class Variables : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMaxVariables = 100000;

    struct Variable {
        QString name;
        QString type;
        QJsonValue value;
        bool persistent = false;
        QJsonObject record = {}; ///< as it was told; empty for one of the controller's own

        /** From a record of a project's list: `name`, `type`, `pers` and `value.[0][0][0]`. */
        static Variable fromRecord(const QJsonObject &record);
        QJsonObject toJson() const;
    };

    explicit Variables(const QVector<Variable> &own, QObject *parent = nullptr);

    /** Replaces those of the project. A name that the controller has itself goes before. */
    void setProject(const QVector<Variable> &variables);
    /** What persistent variables of the project hold that is not what their records say. */
    QJsonObject changedProjectValues() const;
    /** Sets variables of the project; a name or a value that does not fit is passed over. */
    void restoreProjectValues(const QJsonObject &values);
    const QMap<QString, Variable> &own() const { return m_own; }
    /** Adds one to the project's, or replaces the one of that name. Refused where there are too
     *  many. */
    Refusal put(const Variable &variable);
    /** Forgets one of the project's; an unknown name changes nothing. */
    void remove(const QString &name);
    /** Refused for an unknown name and for a value of another kind (number, truth value, ...) than
     *  the variable's; a text that reads as one of that kind is one. */
    Refusal setValue(const QString &name, const QJsonValue &value);
    /** Why setValue() would refuse. */
    Refusal checkValue(const QString &name, const QJsonValue &value) const;

    /** Null where nothing has that name. The pointer holds until the next change. */
    const Variable *find(const QString &name) const;
    /** From the name to the variable. */
    QJsonObject toJson() const;

    /** A value as the text by which it travels: texts as they are, all else as JSON writes it. */
    static QString textOf(const QJsonValue &value);

signals:
    /** A variable came, went or changed; "": any of them. */
    void changed(const QString &name);

private:
    QMap<QString, Variable> m_own;
    QMap<QString, Variable> m_project;
};

/** The variables of a project's file; nothing where there is no such file. `error` says why one
 * that is there can't be read. */
QVector<Variables::Variable> readVariableFile(const QString &path, QString *error);

} // namespace simulator
