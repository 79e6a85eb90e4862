#pragma once

#include "scenario.h"

#include <QByteArray>
#include <QJsonObject>
#include <optional>

namespace simulator
{

class Simulator;

/**
 * What a controller knows again after it was switched off and on, as a scenario tells it: the
 * operating mode, level and identity, the joints, the tools and work objects with the chosen ones,
 * signals, registers, variables, projects with the open one, the keys of the hub. The motors are
 * off then, no program runs and nobody monitors.
 */
QJsonObject keptState(Simulator &simulator);

/** The part of `now` that differs from `base`: a scenario again. Of signals, registers and
 *  variables just those that have changed, so that all else follows an edit of the scenario. */
QJsonObject changedState(const QJsonObject &base, const QJsonObject &now);

/** The scenario with what has changed since, which is dropped where it no longer fits: a signal
 *  that is gone or of another type, the joints of another arm. Nothing where the changes are no
 *  scenario; then `error` says why. */
std::optional<Scenario> withState(const Scenario &scenario, const QByteArray &changes,
                                  QString *error);

} // namespace simulator
