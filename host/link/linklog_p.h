#pragma once

#include <QLoggingCategory>

namespace rpc
{

Q_DECLARE_LOGGING_CATEGORY(linkLog)

} // namespace rpc
