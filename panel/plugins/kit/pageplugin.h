#pragma once

#include "page.h"

#include <QPointer>
#include <zeplet/plugin/pluginbase.h>
#include <zeplet/plugin/pluginregister.h>
#include <zeplet/plugin/uiservices.h>

namespace kit
{

/** A plugin that shows one page and does nothing else. */
class PagePlugin : public zeplet::PluginBase
{
public:
    using MakePage = std::function<Page *()>;

    PagePlugin(QObject *parent, const QString &label, const QString &icon, MakePage makePage)
        : PluginBase(parent)
        , m_icon(icon)
        , m_makePage(std::move(makePage))
    {
        setPluginLabel(label);
    }

    void init() override
    {
        m_page = m_makePage();
        zeplet::CreateCenterWidget(m_page->pluginName(), m_page);
        choosePictogram(this, m_page->pluginName(), m_icon);
    }

    // What the page holds goes while the panel is still whole.
    void detach() override { delete m_page; }

private:
    QString m_icon;
    MakePage m_makePage;
    QPointer<Page> m_page;
};

/** Registers the plugin PageClass::pluginName() with that page. icon: a pictogram of the host by
 * its name; label: for the navigation, in English and marked with QT_TRANSLATE_NOOP("navigation",
 * ...). For a static initialiser. */
template <typename PageClass>
bool registerPage(const char *icon, const char *label)
{
    zeplet::zepletFactory().regist(PageClass::pluginName(), [=](QObject *parent) {
        return new PagePlugin(parent, QString::fromUtf8(label), QString::fromLatin1(icon),
                              [] { return new PageClass; });
    });
    return true;
}

} // namespace kit
