// A small plugin with a page. The benchmark makes copies of the library with other digits in the
// name, which therefore stands in the file as it is and is read at run time.
#include <zeplet/plugin/pluginbase.h>
#include <zeplet/plugin/pluginregister.h>
#include <zeplet/plugin/uiservices.h>

#include <QLabel>

namespace
{

const volatile char nameInFile[] = "small_plugin_000";

QString pluginName()
{
    QString name;
    for (const volatile char *c = nameInFile; *c; ++c)
        name += QLatin1Char(*c);
    return name;
}

class SmallPlugin : public zeplet::PluginBase
{
public:
    using PluginBase::PluginBase;

    void init() override { zeplet::CreateCenterWidget(pluginName(), new QLabel(pluginName())); }
    void render() override { ++m_frames; }

private:
    int m_frames = 0;
};

[[maybe_unused]] const bool registered = [] {
    zeplet::zepletFactory().regist(pluginName(),
                                   [](QObject *parent) { return new SmallPlugin(parent); });
    return true;
}();

} // namespace
