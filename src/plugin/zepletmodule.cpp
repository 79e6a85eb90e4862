#include <zeplet/plugin/zepletmodule.h>

#include <brisa/managerhelper.h>
#include <kest/centerwidget.h>
#include <kest/expandsidebar.h>
#include <kest/statusbar.h>
#include <kivra/navigation.h>
#include <ostrel/moduleobject.h>
#include <zeplet/events/zepleteventsystem.h>
#include <zeplet/log/hostlines_p.h>
#include <zeplet/log/jsontext_p.h>
#include <zeplet/plugin/pluginbase.h>
#include <zeplet/plugin/pluginregister.h>
#include <zeplet/plugin/pluginsettingpage.h>
#include <zeplet/plugin/uiservices.h>

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

namespace zeplet
{

namespace
{

// The host may make more than one module of a name; they share the plugin's name on the bus.
QHash<QString, int> &liveModules()
{
    static QHash<QString, int> counts;
    return counts;
}

QString levelWord(enThrowLogLevel level)
{
    switch (level) {
    case ThrowLogWarning:
        return QStringLiteral("warning");
    case ThrowLogError:
        return QStringLiteral("error");
    default:
        return QStringLiteral("info");
    }
}

// "robot.pack" lies at robot.page.pack: every step of the navigation tree keeps its entries in a
// child "page".
ostrel::ModuleObject *navigationEntries(const QString &parent)
{
    QString path = parent;
    path.replace(QLatin1Char('.'), QStringLiteral(".page."));
    return m(QStringLiteral("kivra.page"))->r(path)->r(QStringLiteral("page"));
}

void removeFirstLinkedTo(QJsonArray &entries, const QString &nav)
{
    for (int i = 0; i < entries.size(); ++i) {
        if (entries.at(i).toObject().value(QLatin1String("nav")).toString() != nav)
            continue;
        entries.removeAt(i);
        return;
    }
}

void writeCancelPageLine(const QString &text)
{
    infoLine() << QStringLiteral("zeplet::Zeplet::cancelPage : ") << text;
}

} // namespace

Zeplet::Zeplet(const QString &name, QObject *parent)
    : kest::BModule(parent)
    , m_pluginName(name)
{
    ++liveModules()[name];
    brisa::ManagerHelper::instance()->registQrcAlias(name);
    bindMobj(mName(QStringLiteral("ostrel"), QStringLiteral("zeplet"), name));
    statusLine() << QStringLiteral("<zeplet> '%1' init. current zeplet version : [v%2]")
                        .arg(name, GetPluginVersion());
}

Zeplet::~Zeplet()
{
    errorLine() << QStringLiteral("~Zeplet begin");
    zepletFactory().cancel(m_pluginName);
    instantiatedCenterWidget()->removeItem(this, pageKey(), false);
    cancelPage(QStringLiteral("robot.pack"), pageKey());
    errorLine() << QStringLiteral("~Zeplet end!");
    releaseHeld();
}

// What would outlive the module and bother the operator or the next module of that name.
void Zeplet::releaseHeld()
{
    changeModelWindowStatus(false);
    if (m_settingPage && m_settingPage->isFullWidget())
        m_settingPage->changeFullWidget(false);

    if (--liveModules()[m_pluginName] > 0)
        return;
    liveModules().remove(m_pluginName);
    if (ZepletEventSystem *bus = ZepletEventSystem::existingInstance())
        bus->unsubscribeByPlugin(m_pluginName);
}

void Zeplet::setPlugin(PluginBase *plugin)
{
    m_plugin = plugin;
    if (plugin)
        return;
    const QString error
        = QStringLiteral("The factory of the plugin '%1' made no plugin.").arg(m_pluginName);
    mobj()->set(this, QStringLiteral("error"), error, true);
    errorLine() << QStringLiteral("<zeplet> ") << error;
}

QString Zeplet::name() const
{
    return QStringLiteral("zeplet");
}

const QString &Zeplet::pluginName() const
{
    return m_pluginName;
}

QString Zeplet::pageKey() const
{
    return mName(QStringLiteral("zeplet"), m_pluginName);
}

QString Zeplet::sidePageKey(const QString &page) const
{
    return mName(name(), m_pluginName, page.isEmpty() ? m_pluginName : page);
}

void Zeplet::setup()
{
    kest::CenterWidget *center = instantiatedCenterWidget();
    m_settingPage = new PluginSettingPage(name(), m_pluginName, center, this);
    center->addPage(this, pageKey(), m_settingPage->wgt());
}

void Zeplet::init()
{
    if (!m_plugin)
        return;
    registerNavigationPage();
    m_plugin->init();
}

void Zeplet::registerNavigationPage()
{
    infoLine() << QStringLiteral("Zeplet::init() begin");
    const QString label = m_plugin->getPluginLabel();
    ostrel::ModuleObject *page = qo::kivra::registerPage(
        this, label.isEmpty() ? m_pluginName : label, QStringLiteral("robot.pack"), QString(), -1);
    page->set(this, QStringLiteral("nav"), QVariant(pageKey()), true);
    infoLine() << QStringLiteral("Zeplet::end()");
}

void Zeplet::afterInit()
{
    if (m_plugin)
        m_plugin->afterInit();
}

void Zeplet::render()
{
    if (!m_plugin)
        return;
    if (m_settingPage && m_plugin->getDefaultGlobalSheet())
        m_settingPage->startRender();
    m_plugin->render();
}

void Zeplet::idle()
{
    if (m_plugin)
        m_plugin->idle();
}

void Zeplet::detach()
{
    if (m_plugin)
        m_plugin->detach();
}

void Zeplet::createCenterWidgte(QWidget *widget)
{
    if (!widget)
        return;
    // A plugin that asks in its constructor comes before setup().
    if (!m_settingPage) {
        errorLine() << QStringLiteral("<zeplet> '%1' has no page yet: make the centre widget in "
                                      "init() or later.")
                           .arg(m_pluginName);
        return;
    }
    m_settingPage->createCenterWidget(widget);
}

bool Zeplet::createStatusBar(QWidget *widget, int index)
{
    if (!widget)
        return false;
    return instantiatedStatusBar(this)->addBeforeItem(
        this, mName(name(), m_pluginName, QString::number(index)),
        QStringLiteral("tavik.body.statuspage.wgtStrech2"), widget);
}

bool Zeplet::createRightExpandWidgte(QWidget *widget, const QString &page)
{
    if (!widget)
        return false;
    kest::ExpandSideBar *side = instantiatedRightExpandSideWidget();
    if (!side) {
        errorLine() << QStringLiteral("<zeplet> the right side bar is null");
        return false;
    }
    return side->addPage(this, sidePageKey(page), widget);
}

void Zeplet::switchRightExpandWidgte(const QString &page)
{
    kest::ExpandSideBar *side = instantiatedRightExpandSideWidget();
    if (!side || !side->switchTo(this, sidePageKey(page)) || side->isVisible())
        return;
    side->setVisible(true);
    side->update();
}

bool Zeplet::createPhyBtnPage(const QString &page, const QList<brisa::PhysicalButton> &first,
                              const QList<brisa::PhysicalButton> &second, QStringList extra)
{
    qo::kivra::registerPhysicalButtons(this, page, first, second, extra);
    return true;
}

bool Zeplet::changePhyBtnStatus(const QString &page, bool enable)
{
    qo::kivra::enableRegisterPhysicalButtons(this, page, enable);
    return true;
}

bool Zeplet::changeModelWindowStatus(bool shown)
{
    if (shown == m_modelWindowShown)
        return false;
    ostrel::ModuleObject *count = m(mName(QStringLiteral("brisa.msg"), QStringLiteral("_")));
    count->set(this, count->getInt(0) + (shown ? 1 : -1));
    statusLine() << QStringLiteral("Current Model Count : ") << QVariant(count->getInt(0));
    m_modelWindowShown = shown;
    return true;
}

bool Zeplet::changeFullScreen(bool full)
{
    return m_settingPage && m_settingPage->changeFullWidget(full);
}

int Zeplet::ThrowLog(enThrowLogLevel level, const QString &message)
{
    brisa::ManagerHelper::instance();
    brisa::ManagerHelper::throwLog(this, levelWord(level), message);
    return 0;
}

bool Zeplet::cancelPage(const QString &parent, const QString &nav)
{
    writeCancelPageLine(QStringLiteral("parent=%1, nav=%2").arg(parent, nav));
    if (parent.isEmpty())
        return false;
    ostrel::ModuleObject *list = navigationEntries(parent);
    QJsonArray entries = list->exportToJson(true).toArray();
    writeCancelPageLine(jsonText(entries));
    removeFirstLinkedTo(entries, nav);
    writeCancelPageLine(jsonText(entries));
    list->importFromJson(this, entries, true, true, true);
    return true;
}

} // namespace zeplet
