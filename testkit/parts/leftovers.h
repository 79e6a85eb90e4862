#pragma once

#include "buswatch.h"

#include <QStringList>

namespace zeplet
{
namespace test
{

/** Tells what a plugin left behind: what is there after its module has gone and was not there
 *  before any plugin started. */
class Leftovers
{
public:
    explicit Leftovers(const BusWatch &bus);

    /** plugins: all that this panel runs. What was told once is not told again. */
    QStringList of(const QString &plugin, const QStringList &plugins);

private:
    QStringList subscriptions(const QString &plugin, const QStringList &plugins);
    QStringList modalWindows();

    const BusWatch &m_bus;
    QStringList m_told; ///< ids of subscriptions
    int m_modalWindows;
};

} // namespace test
} // namespace zeplet
