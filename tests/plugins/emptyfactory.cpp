// Registers a function object without a function.
#include <zeplet/plugin/pluginregister.h>

namespace
{

[[maybe_unused]] const bool registered = [] {
    zeplet::zepletFactory().regist(QStringLiteral("emptyfactory"), {});
    return true;
}();

} // namespace
