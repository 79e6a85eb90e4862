// A plugin that does what it should, and shows a page.
#include "fixture.h"

#include <QLabel>
#include <zeplet/plugin/uiservices.h>

class Sound : public zeplet::PluginBase
{
public:
    using PluginBase::PluginBase;

    void init() override
    {
        zeplet::CreateCenterWidget(QStringLiteral("sound"), new QLabel(QStringLiteral("Sound")));
    }
};

static const Registration registration("sound", [](QObject *parent) { return new Sound(parent); });
