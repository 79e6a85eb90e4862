#include "utcclock_p.h"

namespace zeplet
{

const QDateTime &startOfTime()
{
    static const QDateTime start = QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
    return start;
}

} // namespace zeplet
