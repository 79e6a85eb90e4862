// Calls a function that no library defines.
#include <zeplet/plugin/pluginbase.h>
#include <zeplet/plugin/pluginregister.h>

namespace gripper
{
void closeFingers(int force);
} // namespace gripper

namespace
{

[[maybe_unused]] const bool registered = [] {
    zeplet::zepletFactory().regist(QStringLiteral("unresolved"), [](QObject *parent) {
        gripper::closeFingers(3);
        return new zeplet::PluginBase(parent);
    });
    return true;
}();

} // namespace
