// Needs a library that is not there when it is opened.
#include "fixture.h"

int absentAnswer();

static const Registration registration("dependent", [](QObject *parent) {
    return absentAnswer() ? new zeplet::PluginBase(parent) : nullptr;
});
