// A plugin that does what it should, and shows a page.
#include <zeplet/plugin/pluginbase.h>
#include <zeplet/plugin/pluginregister.h>
#include <zeplet/plugin/uiservices.h>

#include <QLabel>

namespace
{

class Sound : public zeplet::PluginBase
{
public:
    using PluginBase::PluginBase;

    void init() override
    {
        zeplet::CreateCenterWidget(QStringLiteral("sound"), new QLabel(QStringLiteral("Sound")));
    }
};

[[maybe_unused]] const bool registered = [] {
    zeplet::zepletFactory().regist(QStringLiteral("sound"),
                                   [](QObject *parent) { return new Sound(parent); });
    return true;
}();

} // namespace
