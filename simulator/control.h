#pragma once

#include "reply.h"

#include <functional>

namespace simulator
{

class Simulator;

/** One line of the control language (docs/simulator.md lists it), read but not yet carried out. */
struct ControlLine {
    std::function<Reply(Simulator &)> run; ///< empty where `error` is set
    QString error;

    static ControlLine parse(const QString &line);
};

} // namespace simulator
