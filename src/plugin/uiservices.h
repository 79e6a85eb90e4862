#pragma once

#include <zeplet/export.h>
#include <zeplet/plugin/physicalbutton.h>
#include <zeplet/plugin/throwloglevel.h>

#include <QList>
#include <QString>
#include <QStringList>

class QWidget;

namespace zeplet
{

/**
 * @defgroup ui User interface services
 * What the panel's UI does for a plugin. The plugin names itself; its host module does the work.
 * All of it belongs to the GUI thread and returns at once. "No plugin name" is an empty one; "no
 * such plugin", which writes an error line, is one that the host has no module for. Widgets that a
 * plugin hands over belong to the host from then on.
 * @{
 */

/** Puts the widget into the plugin's page in the centre area. 0 done, -1 no plugin name, -2 no such
 * plugin. */
ZEPLET_EXPORT int CreateCenterWidget(const QString &pluginName, QWidget *widget);

/** Adds a status bar item; index tells several items of a plugin apart. 1 added, 0 not
 *  added, -1 no plugin name, -2 no such plugin. */
ZEPLET_EXPORT int CreateStatusBar(const QString &pluginName, QWidget *widget, int index);

/** Adds a page to the right side bar; page empty: the plugin's name. 0 added, -1 not
 *  added or no plugin name, -2 no such plugin. */
ZEPLET_EXPORT int CreateRightExpandWidgte(const QString &pluginName, QWidget *widget,
                                          const QString &page);

/** Shows the plugin's page in the right side bar. An empty plugin name hides the bar.
 *  0 done, -2 no such plugin. */
ZEPLET_EXPORT int SwitchRightExpandWidgte(const QString &pluginName, const QString &page);

/** Stores the right side bar, or null where the host has none. 0 done, -1 out is null. */
ZEPLET_EXPORT int GetRightExpandSideBar(QWidget **out);

/** Registers two rows of physical keys under a page name. Icons are loaded from their paths. 0
 * done, -1 no plugin name, -2 no such plugin. */
ZEPLET_EXPORT int CreatePhyButtonList(const QString &pluginName, const QString &page,
                                      const QList<PhysicalButton> &first,
                                      const QList<PhysicalButton> &second, QStringList extra);
/** Enables or disables the keys of a registered page. 0 done, -1 no plugin name, -2 no such plugin.
 */
ZEPLET_EXPORT int ChangePhyButtonStatus(const QString &pluginName, const QString &page,
                                        bool enable);

/** Tells the host that the plugin shows a modal window, or no longer does; one counts at most.
 *  0 done, -1 no plugin name, -2 no such plugin. */
ZEPLET_EXPORT int ChangeModelWindowStatus(const QString &pluginName, bool shown);

/** Shows the centre widget on the whole screen, or back in its page; 0, too, where it is that way
 *  already. 0 done, -1 no plugin name, -2 no such plugin. */
ZEPLET_EXPORT int ChangeFullScreen(const QString &pluginName, bool full);

/** Shows a message to the operator in the host's log banner. 0 done, -1 no plugin name, -2 no such
 * plugin. */
ZEPLET_EXPORT int ThrowLog(const QString &pluginName, enThrowLogLevel level,
                           const QString &message);

/** Sets path to the plugin's data directory, "zeplets/client/<name>/". 0 done, -1 no
 *  plugin name, or one that would lead out of that directory, -2 no such plugin; path stays as it
 *  was where it is not 0. */
ZEPLET_EXPORT int GetPluginDataPath(QString &path, const QString &pluginName);

/** The version of this library in four parts. */
ZEPLET_EXPORT QString GetPluginVersion();

/** @} */

} // namespace zeplet
