#pragma once

class QJsonObject;
class QObject;

namespace brisa
{

/**
 * Mirror the controller's answers into the data store. A member that is missing leaves the store as
 * it is, one of a wrong type is logged and passed over, and a value is set only where it differs,
 * so that one change is one event. origin is passed on to changed(). What a watcher throws is
 * caught and logged; the other members are set all the same. GUI thread.
 */
void mirrorState(const QJsonObject &state, QObject *origin);
/** The same for the answer to "system.controller.get_params". */
void mirrorParams(const QJsonObject &params, QObject *origin);

} // namespace brisa
