// Leaves something behind: a button for each kind of thing.
#include <QPushButton>
#include <QVBoxLayout>
#include <kest/centerwidget.h>
#include <kest/expandsidebar.h>
#include <kest/statusbar.h>
#include <kivra/navigation.h>
#include <ostrel/moduleobject.h>
#include <zeplet/zeplet.h>

using namespace zeplet;

namespace
{

const QString self = QStringLiteral("leaky");

void ignoreEvent(const ZepletEvent &) { }
void ignoreValue(const QVariant &) { }

const struct {
    const char *button;
    void (*leave)();
} leaks[] = {
    {"nothing",
     [] {
         zepletEvent()->subscribeFiltered(RCRunStart, {}, ignoreEvent, self);
         auto *const widget = new QWidget;
         CreateStatusBar(self, widget, 0);
         CreateRightExpandWidgte(self, new QWidget, QString());
         CreatePhyButtonList(self, self, {{"Close", {}, {}, {}}}, {}, {});
     }},
    {"subscription",
     [] { zepletEvent()->subscribeFiltered(RCRunStart, {}, ignoreEvent, "nobody"); }},
    {"nameless subscription", [] { zepletEvent()->subscribe(RCRunStop, ignoreEvent); }},
    {"hub watch", [] { zepletInterface()->connectNexoData(self, "demo.x", ignoreValue); }},
    {"notify watch", [] { zepletInterface()->connectRcNotify(self, "demo.y", ignoreValue); }},
    {"motion",
     [] {
         int result = 0;
         zepletInterface()->createPoint("here", false, false);
         zepletInterface()->moveToStart(result, "here", 100, false, false);
     }},
    {"monitor", [] { zepletInterface()->registPERSVars({"part_count"}); }},
    {"centre page",
     [] { instantiatedCenterWidget()->addPage(nullptr, "leaky.more", new QWidget); }},
    {"side page",
     [] { instantiatedRightExpandSideWidget()->addPage(nullptr, "leaky.side", new QWidget); }},
    {"status entry",
     [] { instantiatedStatusBar(nullptr)->addBeforeItem(nullptr, "leaky.bar", {}, new QWidget); }},
    {"page of keys",
     [] { qo::kivra::registerPhysicalButtons(nullptr, "leaky.keys", {{}}, {}, {}); }},
    {"modal window", [] { ChangeModelWindowStatus(self, true); }},
    {"modal count", [] { m("brisa.msg._")->set(nullptr, 3); }},
    {"full screen", [] { ChangeFullScreen(self, true); }},
    {"window",
     [] {
         static auto *const window = new QWidget; // still known: no leak of memory
         window->setWindowTitle("Leak");
         window->show();
     }},
    {"filter", [] { zepletInterface()->startRunningFilter(true); }},
};

class Leaky : public PluginBase
{
public:
    using PluginBase::PluginBase;

    void init() override
    {
        auto *const page = new QWidget;
        auto *const column = new QVBoxLayout(page);
        for (const auto &leak : leaks) {
            auto *const button = new QPushButton(QLatin1String(leak.button), page);
            QObject::connect(button, &QPushButton::clicked, this, leak.leave);
            column->addWidget(button);
        }
        CreateCenterWidget(self, page);
    }
};

const bool isRegistered = [] {
    zepletFactory().regist(self, [](QObject *parent) { return new Leaky(parent); });
    return true;
}();

} // namespace
