#pragma once

#include "refusal.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QObject>
#include <QVector>

namespace simulator
{

/**
 * The controller's IO: signals with their values, which of them are the system's own, and the
 * switch for simulated inputs. Lives on the simulator's thread.
 */
class IoSignals : public QObject
{
    Q_OBJECT

public:
    /** As numbered on the wire. */
    enum Type { DigitalIn = 1, DigitalOut, GroupIn, GroupOut, AnalogueIn, AnalogueOut };

    struct Signal {
        QString name;
        Type type = DigitalIn;
        QString label;
        QJsonValue value = false; ///< a truth value for digital signals, else a number
    };
    /** A signal that is tied to a function of the controller. */
    struct SystemIo {
        QString signal;
        QString function;
    };
    struct Values {
        QVector<Signal> list; ///< in catalogue order
        QVector<SystemIo> systemInputs;
        QVector<SystemIo> systemOutputs;
        bool simulated = false;
    };

    explicit IoSignals(const Values &values, QObject *parent = nullptr);

    /** "DI", "DO", "GI", "GO", "AI", "AO": in the order of the types. */
    static QStringList typeNames();
    /** The value as a signal of the type keeps it: a digital one takes a truth value, a group an
     *  integer from 0 to 4294967295, an analogue one a number; both take a truth value as 1 or 0.
     *  Undefined where it does not fit. */
    static QJsonValue fitted(Type type, const QJsonValue &value);

    /** What a client may do: all of the signals or, with a reason, none. Refused for an unknown
     *  name, a value that does not fit, a system signal, and an input that is not simulated. */
    Refusal request(const QJsonObject &values);
    /** What the field or a program does: only the first two are refused. */
    Refusal set(const QString &name, const QJsonValue &value);
    void setSimulated(bool on);

    const Values &values() const { return m_values; }
    /** Undefined where nothing has that name. */
    QJsonValue value(const QString &name) const;
    /** From the name to the value. */
    QJsonObject valuesToJson() const;
    /** The catalogue, the system signals and the switch: what travels as `io.state`. */
    QJsonObject toJson() const;

signals:
    /** The switch has changed. */
    void stateChanged();
    void valueChanged(const QString &name, const QJsonValue &value);

private:
    Refusal checkValue(const QString &name, const QJsonValue &value) const;
    bool isSystem(const QString &name) const;

    Values m_values;
    QHash<QString, int> m_indexes;
};

} // namespace simulator
