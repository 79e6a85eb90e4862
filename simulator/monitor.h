#pragma once

#include "commandregistry.h"
#include "hubdata.h"
#include "robotstate.h"
#include "variables.h"

#include <QObject>

namespace simulator
{

/**
 * The monitoring of persistent variables at the service hub: the key "monitor.select" holds what a
 * client wants to watch, "monitor.pers" what is watched, "monitor.values" their values as texts.
 * Controller versions without it refuse the key and do not know the commands `monitor.pers.*`.
 * Lives on the simulator's thread.
 */
class Monitor : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMaxSelected = 10000;

    struct Parts {
        HubData &hub;
        Variables &variables;
        const RobotState &robot;
    };

    Monitor(CommandRegistry &hubKeys, const Parts &parts, QObject *parent = nullptr);

private:
    bool isThere() const;
    Refusal checkSelection(const QJsonValue &selection) const;
    void select(const QJsonValue &selection);
    void report(const QString &name);
    Reply modify(const QJsonValue &values);
    Reply read(const QJsonValue &names) const;
    const Variables::Variable *persistent(const QString &name) const;

    Parts m_parts;
    QStringList m_selected;
};

} // namespace simulator
