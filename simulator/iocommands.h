#pragma once

#include "commandregistry.h"
#include "iosignals.h"
#include "registers.h"

namespace simulator
{

/** The controller's commands `io.*` and `register.get`. */
class IoCommands
{
public:
    IoCommands(CommandRegistry &registry, IoSignals &io, const Registers &registers);

private:
    Reply setValues(const QJsonValue &arguments);
    Reply setSimulated(const QJsonValue &arguments);

    IoSignals &m_io;
};

} // namespace simulator
