#pragma once

#include <zeplet/export.h>
#include <zeplet/plugin/physicalbutton.h>
#include <zeplet/plugin/throwloglevel.h>

#include <QList>
#include <QString>
#include <QStringList>

class QWidget;

/*
 * What the panel's UI does for a plugin. The plugin names itself; its host module does the work.
 * All of it belongs to the GUI thread and returns at once. Where nothing else is said, a function
 * returns 0 when done, -1 for an empty plugin name, and -2, with an error line, where the host has
 * no module for that plugin. Widgets that a plugin hands over belong to the host from then on.
 */
namespace zeplet
{

/** Puts the widget into the plugin's page in the centre area. */
ZEPLET_EXPORT int CreateCenterWidget(const QString &pluginName, QWidget *widget);

/** Adds a status bar item; index tells several items of a plugin apart. Returns 1 when added and 0
 *  when not. */
ZEPLET_EXPORT int CreateStatusBar(const QString &pluginName, QWidget *widget, int index);

/** Adds a page to the right side bar; page empty: the plugin's name. Returns 0 when added and -1
 *  when not. */
ZEPLET_EXPORT int CreateRightExpandWidgte(const QString &pluginName, QWidget *widget,
                                          const QString &page);

/** Shows the plugin's page in the right side bar. An empty plugin name hides the bar and
 *  returns 0. */
ZEPLET_EXPORT int SwitchRightExpandWidgte(const QString &pluginName, const QString &page);

/** Stores the right side bar, or null where the host has none. Returns 0; -1 for a null out. */
ZEPLET_EXPORT int GetRightExpandSideBar(QWidget **out);

/** Registers two rows of physical keys under a page name. Icons are loaded from their paths. */
ZEPLET_EXPORT int CreatePhyButtonList(const QString &pluginName, const QString &page,
                                      const QList<PhysicalButton> &first,
                                      const QList<PhysicalButton> &second, QStringList extra);
/** Enables or disables the keys of a registered page. */
ZEPLET_EXPORT int ChangePhyButtonStatus(const QString &pluginName, const QString &page,
                                        bool enable);

/** Tells the host that the plugin shows a modal window, or no longer does; one counts at most. */
ZEPLET_EXPORT int ChangeModelWindowStatus(const QString &pluginName, bool shown);

/** Shows the centre widget on the whole screen, or back in its page. */
ZEPLET_EXPORT int ChangeFullScreen(const QString &pluginName, bool full);

/** Shows a message to the operator in the host's log banner. */
ZEPLET_EXPORT int ThrowLog(const QString &pluginName, enThrowLogLevel level,
                           const QString &message);

/** Sets path to the plugin's data directory, "zeplets/client/<name>/". A name that would lead out
 *  of that directory gives -1, an error line, and leaves path alone. */
ZEPLET_EXPORT int GetPluginDataPath(QString &path, const QString &pluginName);

/** The version of this library in four parts. */
ZEPLET_EXPORT QString GetPluginVersion();

} // namespace zeplet
