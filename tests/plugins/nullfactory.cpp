// The factory makes nothing.
#include <zeplet/plugin/pluginregister.h>

namespace
{

[[maybe_unused]] const bool registered = [] {
    zeplet::zepletFactory().regist(QStringLiteral("nullfactory"),
                                   [](QObject *) { return nullptr; });
    return true;
}();

} // namespace
