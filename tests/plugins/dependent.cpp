// Needs a library that is not there when it is opened.
#include <zeplet/plugin/pluginbase.h>
#include <zeplet/plugin/pluginregister.h>

int absentAnswer();

namespace
{

[[maybe_unused]] const bool registered = [] {
    if (absentAnswer() != 42)
        return false;
    zeplet::zepletFactory().regist(QStringLiteral("dependent"),
                                   [](QObject *parent) { return new zeplet::PluginBase(parent); });
    return true;
}();

} // namespace
