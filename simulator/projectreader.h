#pragma once

#include "hotupdate.h"
#include "jsonreader.h"
#include "projects.h"
#include "systemvariables.h"
#include "variables.h"

namespace simulator
{

/** Reads the member `project` of a scenario. */
Projects::Values readProject(JsonReader &scenario, JsonError &error);
/** Reads the members `variables` and `system_variables`; the latter's default is the controller's.
 */
QVector<Variables::Variable> readVariables(JsonReader &scenario, JsonError &error);
SystemVariables readSystemVariables(JsonReader &scenario, JsonError &error);
/** Reads the member `hot_update`. */
QVector<HotUpdateRule> readHotUpdate(JsonReader &scenario, JsonError &error);

} // namespace simulator
