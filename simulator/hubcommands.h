#pragma once

#include "answers.h"
#include "commandregistry.h"
#include "hubdata.h"

namespace simulator
{

/** The commands of the service hub. */
class HubCommands
{
public:
    /** `keys` holds what `hub.command` carries out, by its key; it outlives this object. */
    HubCommands(CommandRegistry &registry, HubData &data, const Answers &answers,
                CommandRegistry &keys);

private:
    Reply set(const QJsonValue &arguments);
    Reply command(const QJsonValue &arguments, Session &session) const;
    Reply plugin(const QJsonValue &arguments) const;
    static Reply watch(const QJsonValue &arguments, Session &session);

    HubData &m_data;
    const Answers &m_answers;
    const CommandRegistry &m_keys;
};

} // namespace simulator
