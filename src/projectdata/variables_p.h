#pragma once

#include <QString>

namespace ostrel
{
class ModuleObject;
}

namespace zeplet
{

/** The variables of the open project. */
ostrel::ModuleObject *variableList();

/** Whether a variable of that type is an open connection, which nobody but the program changes. */
bool isConnectionType(const QString &type);

} // namespace zeplet
