#pragma once

#include <QJsonValue>

namespace zeplet
{

/** Whether project data can hold the value, so that it reads back as it was: JSON text has no
 *  infinite numbers, and a file of too many levels could never be loaded again. */
bool canBeStored(const QJsonValue &value);

} // namespace zeplet
