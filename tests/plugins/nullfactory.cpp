// The factory makes nothing.
#include "fixture.h"

static const Registration registration("nullfactory", [](QObject *) { return nullptr; });
