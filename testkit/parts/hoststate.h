#pragma once

#include <QStringList>
#include <QWidget>

namespace zeplet
{
namespace test
{

/**
 * The host and the library live as long as the process. This puts them back to how a fresh process
 * finds them, as far as a panel and its plugins see: an empty data store, no module but those that
 * were registered before, no watch, a bus with its bridge.
 */
class HostState
{
public:
    /** Empties the store, and sees to the bridge between host and bus. */
    HostState();
    /** Ends watches, and withdraws what was registered meanwhile, so that another copy of a library
     *  may register the same names. For when no module lives any more. */
    ~HostState();
    Q_DISABLE_COPY(HostState)

private:
    void hideWindows() const;
    void withdrawModules() const;

    const QStringList m_modules; ///< registered before
    const QWidgetList m_windows; ///< there before
};

} // namespace test
} // namespace zeplet
