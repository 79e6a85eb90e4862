#include <zeplet/plugin/pluginbase.h>
#include <zeplet/plugin/pluginregister.h>

#include <stdexcept>

namespace
{

class ThrowingInit : public zeplet::PluginBase
{
public:
    using PluginBase::PluginBase;

    void init() override { throw std::runtime_error("no gripper is mounted"); }
};

[[maybe_unused]] const bool registered = [] {
    zeplet::zepletFactory().regist(QStringLiteral("throwinginit"),
                                   [](QObject *parent) { return new ThrowingInit(parent); });
    return true;
}();

} // namespace
