#pragma once

#include <zeplet/export.h>
#include <zeplet/plugin/throwloglevel.h>

#include <brisa/physicalbutton.h>
#include <kest/bmodule.h>

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>

namespace zeplet
{

class PluginBase;
class PluginSettingPage;

/**
 * The host module of one plugin: gives it a page in the centre area and a navigation entry,
 * forwards the host's life cycle calls, and carries out the UI services that the plugin asks for.
 * Its destructor withdraws all of it. GUI thread.
 */
class ZEPLET_EXPORT Zeplet : public kest::BModule
{
    Q_OBJECT

public:
    /** The module of the plugin of that name; the parent owns it. */
    Zeplet(const QString &name, QObject *parent);
    ~Zeplet() override;

    /** Set once, right after construction. The plugin is a child of this object. Null is an error
     *  of the plugin: it is logged, "error" of the module's data node tells the host, and the
     *  module does nothing when it is driven all the same. */
    void setPlugin(PluginBase *plugin);

    /** "zeplet" for every plugin. */
    QString name() const override;
    /** The name that the plugin registered. */
    const QString &pluginName() const;

    /** Makes the plugin's page and adds it to the centre area. */
    void setup() override;
    /** Makes the navigation entry, then calls the plugin's init(). */
    void init() override;
    /** Calls the plugin's afterInit(). */
    void afterInit() override;
    /** Applies the host's style sheet where the plugin wants it, then calls its render(). */
    void render() override;
    /** Calls the plugin's idle(). */
    void idle() override;
    /** Calls the plugin's detach(). */
    void detach() override;

    /** Puts the widget into the plugin's page, which owns it from then on. */
    void createCenterWidgte(QWidget *widget);
    /** Adds an item to the status bar, left of the host's stretch element. */
    bool createStatusBar(QWidget *widget, int index);
    /** Adds a page to the right side bar; page empty: the plugin's name. False, with an error
     *  line, where the host has no side bar. */
    bool createRightExpandWidgte(QWidget *widget, const QString &page);
    /** Shows a page of the right side bar, and the bar. */
    void switchRightExpandWidgte(const QString &page);
    /** Registers two rows of physical keys under a page name. */
    bool createPhyBtnPage(const QString &page, const QList<brisa::PhysicalButton> &first,
                          const QList<brisa::PhysicalButton> &second, QStringList extra);
    /** Enables or disables the keys of a page. */
    bool changePhyBtnStatus(const QString &page, bool enable);
    /** Counts one modal window of this module in the host, or takes it back; false and no change
     *  where it is that way already. */
    bool changeModelWindowStatus(bool shown);
    /** Takes the plugin's centre widget to the whole screen, or back; false without one, or where
     *  it is that way already. */
    bool changeFullScreen(bool full);
    /** Shows a message in the host's log banner. Always 0. */
    int ThrowLog(enThrowLogLevel level, const QString &message);
    /** Removes the first navigation entry below parent that is linked to the centre page nav.
     *  False for an empty parent only. */
    bool cancelPage(const QString &parent, const QString &nav);

private:
    QString pageKey() const;
    QString sidePageKey(const QString &page) const;
    void registerNavigationPage();
    void releaseHeld();

    QPointer<PluginBase> m_plugin; ///< a child; null where there is none, or none any more
    PluginSettingPage *m_settingPage = nullptr;
    QString m_pluginName;
    bool m_modelWindowShown = false;
};

} // namespace zeplet
