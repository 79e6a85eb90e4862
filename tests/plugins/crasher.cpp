// Takes the panel down in the step that CRASHER_STEP names, by default in its init. The library
// registers two plugins; the steps of the second one begin with "second".
#include <zeplet/plugin/pluginbase.h>
#include <zeplet/plugin/pluginregister.h>

#include <csignal>
#include <sys/resource.h>

namespace
{

void pass(const QString &step)
{
    if (step != qEnvironmentVariable("CRASHER_STEP", QStringLiteral("init")))
        return;
    const rlimit noCore {0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    std::signal(SIGABRT, SIG_DFL);
    raise(SIGABRT);
}

class Crasher : public zeplet::PluginBase
{
public:
    Crasher(const QString &prefix, QObject *parent)
        : PluginBase(parent)
        , m_prefix(prefix)
    {
        pass(m_prefix + "construction");
    }

    void init() override { pass(m_prefix + "init"); }
    void afterInit() override { pass(m_prefix + "afterInit"); }
    void render() override { pass(m_prefix + "render"); }

private:
    QString m_prefix;
};

void regist(const QString &name, const QString &prefix)
{
    zeplet::zepletFactory().regist(
        name, [prefix](QObject *parent) { return new Crasher(prefix, parent); });
}

[[maybe_unused]] const bool registered = [] {
    pass(QStringLiteral("loading"));
    regist(QStringLiteral("crasher"), QString());
    regist(QStringLiteral("crasher-second"), QStringLiteral("second "));
    return true;
}();

} // namespace
