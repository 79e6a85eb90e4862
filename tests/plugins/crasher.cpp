// Takes the process down in its init, unless the environment says that it was corrected.
#include <zeplet/plugin/pluginbase.h>
#include <zeplet/plugin/pluginregister.h>

#include <csignal>
#include <sys/resource.h>

namespace
{

class Crasher : public zeplet::PluginBase
{
public:
    using PluginBase::PluginBase;

    void init() override
    {
        if (qEnvironmentVariableIsSet("CRASHER_CORRECTED"))
            return;
        const rlimit noCore {0, 0};
        setrlimit(RLIMIT_CORE, &noCore);
        std::signal(SIGABRT, SIG_DFL);
        raise(SIGABRT);
    }
};

[[maybe_unused]] const bool registered = [] {
    zeplet::zepletFactory().regist(QStringLiteral("crasher"),
                                   [](QObject *parent) { return new Crasher(parent); });
    return true;
}();

} // namespace
