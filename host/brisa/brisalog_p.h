#pragma once

#include <QLoggingCategory>

namespace brisa
{

Q_DECLARE_LOGGING_CATEGORY(brisaLog)

} // namespace brisa
