#pragma once

#include "refusal.h"

#include <QJsonArray>
#include <QObject>
#include <QStringList>
#include <QVector>

namespace simulator
{

/** The controller's registers: named lists of texts. Lives on the simulator's thread. */
class Registers : public QObject
{
    Q_OBJECT

public:
    struct Register {
        QString name;
        QStringList value;
    };
    using Values = QVector<Register>;

    explicit Registers(const Values &values, QObject *parent = nullptr);

    /** Refused for an unknown name and for an index that the register has not. */
    Refusal set(const QString &name, int index, const QString &text);
    /** What travels as `register.state`: objects with `name` and `value`. */
    QJsonArray toJson() const;

signals:
    void changed();

private:
    Values m_values;
};

} // namespace simulator
