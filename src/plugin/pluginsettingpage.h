#pragma once

#include <zeplet/export.h>

#include <brisa/basesettingpage.h>

#include <QHBoxLayout>
#include <QPointer>
#include <QString>
#include <QWidget>

namespace zeplet
{

/**
 * The page of a plugin in the host's centre area: no title bar, no margins, and one centre widget
 * that it can take out into a frameless full-screen window and put back. GUI thread.
 */
class ZEPLET_EXPORT PluginSettingPage : public brisa::BaseSettingPage
{
    Q_OBJECT

public:
    /** A page of that name for the plugin's module; the parent owns it. */
    PluginSettingPage(const QString &name, const QString &pluginName, QWidget *parent,
                      QObject *module);
    ~PluginSettingPage() override;

    /** Puts the widget into the page, which owns it from then on. */
    void createCenterWidget(QWidget *widget);

    /** Takes the centre widget out to the whole screen, or back. False without a centre widget,
     *  and, with an error line, where it is that way already. */
    bool changeFullWidget(bool full);
    /** Whether the centre widget is on the whole screen. */
    bool isFullWidget() const;

private:
    void takeOut();
    void putBack();

    QPointer<QWidget> m_centerWidget;
    QPointer<QWidget> m_savedParent;
    QString m_savedStyleSheet;
    Qt::WindowFlags m_savedWindowFlags;
    bool m_fullWidget = false;
    QPointer<QHBoxLayout> m_layout; ///< null once the host deleted the page
};

} // namespace zeplet
