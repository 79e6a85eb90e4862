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
    HubCommands(CommandRegistry &registry, HubData &data, const Answers &answers);

private:
    Reply set(const QJsonValue &arguments);
    Reply command(const QJsonValue &arguments) const;
    Reply plugin(const QJsonValue &arguments) const;
    static Reply watch(const QJsonValue &arguments, Session &session);

    HubData &m_data;
    const Answers &m_answers;
};

} // namespace simulator
