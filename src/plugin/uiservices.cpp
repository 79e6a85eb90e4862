#include <zeplet/plugin/uiservices.h>

#include <brisa/physicalbutton.h>
#include <kest/bmodule.h>
#include <kest/expandsidebar.h>
#include <zeplet/log/hostlines_p.h>
#include <zeplet/plugin/zepletmodule.h>

namespace zeplet
{

namespace
{

enum Status { Done = 0, Invalid = -1, NoModule = -2 };

// Which of the two keys an error line shows differs by function; tools that read the log rely on
// it.
enum PrintedKey { ShortKey, ModuleKey };

QString moduleKey(const QString &pluginName)
{
    return mName(QStringLiteral("ostrel"), QStringLiteral("zeplet"), pluginName);
}

QString printedKey(const QString &pluginName, PrintedKey key)
{
    return key == ModuleKey ? moduleKey(pluginName) : mName(QStringLiteral("ostrel"), pluginName);
}

// Runs the service on the plugin's module; otherwise says why there is none.
template <typename Service>
int withModule(const QString &pluginName, PrintedKey key, Service service)
{
    if (pluginName.isEmpty())
        return Invalid;
    auto *module = dynamic_cast<Zeplet *>(bModule(moduleKey(pluginName)));
    if (!module) {
        errorLine() << QStringLiteral("<zeplet interfacemanager>") << printedKey(pluginName, key)
                    << QStringLiteral(" unuseful");
        return NoModule;
    }
    return service(*module);
}

QList<brisa::PhysicalButton> toHost(const QList<PhysicalButton> &buttons)
{
    QList<brisa::PhysicalButton> converted;
    converted.reserve(buttons.size());
    for (const PhysicalButton &button : buttons)
        converted.append(
            {button.text, QIcon(button.firstIcon), QIcon(button.secondIcon), button.callback});
    return converted;
}

int hideSideBar()
{
    if (kest::ExpandSideBar *side = instantiatedRightExpandSideWidget())
        side->setVisible(false);
    return Done;
}

bool isDirectoryName(const QString &name)
{
    return name != QLatin1String(".") && name != QLatin1String("..")
        && !name.contains(QLatin1Char('/')) && !name.contains(QLatin1Char('\\'))
        && !name.contains(QChar::Null);
}

} // namespace

int CreateCenterWidget(const QString &pluginName, QWidget *widget)
{
    return withModule(pluginName, ShortKey, [&](Zeplet &module) {
        module.createCenterWidgte(widget);
        return Done;
    });
}

int CreateStatusBar(const QString &pluginName, QWidget *widget, int index)
{
    return withModule(pluginName, ModuleKey,
                      [&](Zeplet &module) { return int(module.createStatusBar(widget, index)); });
}

int CreateRightExpandWidgte(const QString &pluginName, QWidget *widget, const QString &page)
{
    return withModule(pluginName, ShortKey, [&](Zeplet &module) {
        return module.createRightExpandWidgte(widget, page) ? 0 : -1;
    });
}

int SwitchRightExpandWidgte(const QString &pluginName, const QString &page)
{
    if (pluginName.isEmpty())
        return hideSideBar();
    return withModule(pluginName, ShortKey, [&](Zeplet &module) {
        module.switchRightExpandWidgte(page);
        return Done;
    });
}

int GetRightExpandSideBar(QWidget **out)
{
    if (!out)
        return Invalid;
    *out = instantiatedRightExpandSideWidget();
    return Done;
}

int CreatePhyButtonList(const QString &pluginName, const QString &page,
                        const QList<PhysicalButton> &first, const QList<PhysicalButton> &second,
                        QStringList extra)
{
    return withModule(pluginName, ModuleKey, [&](Zeplet &module) {
        module.createPhyBtnPage(page, toHost(first), toHost(second), extra);
        return Done;
    });
}

int ChangePhyButtonStatus(const QString &pluginName, const QString &page, bool enable)
{
    return withModule(pluginName, ModuleKey, [&](Zeplet &module) {
        module.changePhyBtnStatus(page, enable);
        return Done;
    });
}

int ChangeModelWindowStatus(const QString &pluginName, bool shown)
{
    return withModule(pluginName, ModuleKey, [&](Zeplet &module) {
        module.changeModelWindowStatus(shown);
        return Done;
    });
}

int ChangeFullScreen(const QString &pluginName, bool full)
{
    return withModule(pluginName, ModuleKey, [&](Zeplet &module) {
        module.changeFullScreen(full);
        return Done;
    });
}

int ThrowLog(const QString &pluginName, enThrowLogLevel level, const QString &message)
{
    return withModule(pluginName, ShortKey,
                      [&](Zeplet &module) { return module.ThrowLog(level, message); });
}

int GetPluginDataPath(QString &path, const QString &pluginName)
{
    return withModule(pluginName, ShortKey, [&](Zeplet &) {
        if (!isDirectoryName(pluginName)) {
            errorLine()
                << QStringLiteral("<zeplet> '%1' is no name for a data directory.").arg(pluginName);
            return Invalid;
        }
        path = QStringLiteral("zeplets/client/%1/").arg(pluginName);
        return Done;
    });
}

QString GetPluginVersion()
{
    return QStringLiteral("%1.%2.%3.%4").arg(1).arg(0).arg(2).arg(7.3);
}

} // namespace zeplet
