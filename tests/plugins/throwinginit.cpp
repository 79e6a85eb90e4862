#include "fixture.h"

#include <stdexcept>

class ThrowingInit : public zeplet::PluginBase
{
public:
    using PluginBase::PluginBase;

    void init() override { throw std::runtime_error("no gripper is mounted"); }
};

static const Registration registration("throwinginit",
                                       [](QObject *parent) { return new ThrowingInit(parent); });
