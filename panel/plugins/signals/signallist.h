#pragma once

#include <QJsonArray>
#include <QJsonValue>
#include <QString>
#include <QVector>

/** The types of signals, as the library numbers them. */
enum class SignalType {
    DigitalInput = 1,
    DigitalOutput,
    GroupInput,
    GroupOutput,
    AnalogueInput,
    AnalogueOutput
};

constexpr int SignalTypes = 6;

bool isDigital(SignalType type);
bool isGroup(SignalType type);
bool isInput(SignalType type);
QString shortName(SignalType type); ///< "DI"
QString longName(SignalType type); ///< "Digital inputs"

/** One signal of the controller, as the host mirrors it. */
struct Signal {
    QString name;
    QString label;
    QString systemFunction; ///< what the controller uses it for; empty where it does not
    bool isSystem = false;
    QJsonValue value; ///< a bool or a number; undefined where it is not known
};

/** The signals of a type in the order of the catalogue. */
QVector<Signal> readSignals(SignalType type);
int countSignals(SignalType type);
/** Whether inputs are simulated. */
bool areInputsSimulated();
