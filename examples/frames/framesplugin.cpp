// What a motion can be built from: tools, work objects, speeds and zones, to choose one of each.
// Shows the lists, what is selected, and which nodes of the data store tell of changes.
#include <ostrel/moduleobject.h>
#include <zeplet/zeplet.h>

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPointer>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("frames");
}

class FramesPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit FramesPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(QT_TRANSLATE_NOOP("navigation", "Frames"));
    }

    void init() override;
    void detach() override { delete m_page; }
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void translate();
    void refresh();
    void describe();

    QPointer<QWidget> m_page;
    QVector<QLabel *> m_captions;
    QVector<QListWidget *> m_lists;
    QLabel *m_title = nullptr;
    QLabel *m_motion = nullptr;
};

void FramesPlugin::init()
{
    m_page = new QWidget;
    m_page->installEventFilter(this);
    auto *layout = new QGridLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    m_title = new QLabel;
    m_title->setProperty("role", "heading");
    layout->addWidget(m_title, 0, 0, 1, 4);
    for (int column = 0; column < 4; ++column) {
        auto *list = new QListWidget;
        connect(list, &QListWidget::currentRowChanged, this, &FramesPlugin::describe);
        m_captions.append(new QLabel);
        m_lists.append(list);
        layout->addWidget(m_captions.last(), 1, column);
        layout->addWidget(list, 2, column);
    }
    m_motion = new QLabel;
    m_motion->setTextFormat(Qt::PlainText); // names are no markup
    layout->addWidget(m_motion, 3, 0, 1, 4);
    refresh();
    translate();
    CreateCenterWidget(pluginName, m_page);

    // What there is changes with the project, what is selected with the operator.
    for (const char *key : {"tavik.toolpage.tool", "tavik.toolpage.wobj",
                            "tavik.project.tool.system_list", "tavik.project.tool._list",
                            "tavik.setting.g_tool.g_tools", "tavik.project.wobj.system_list",
                            "tavik.project.wobj._list", "tavik.setting.g_wobj.g_wobjs",
                            "tavik.project.var.system_list", "tavik.project.var._list"})
        connect(m(key), &ostrel::ModuleObject::changed, m_page, [this] { refresh(); });
}

// The page hears of another language.
bool FramesPlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translate();
    return PluginBase::eventFilter(watched, event);
}

void FramesPlugin::translate()
{
    m_title->setText(tr("Tools, work objects, speeds and zones"));
    const QString captions[] = {tr("Tool"), tr("Work object"), tr("Speed"), tr("Zone")};
    for (int i = 0; i < m_captions.size(); ++i)
        m_captions[i]->setText(captions[i]);
    describe();
}

// A project's entry may have the name of a global one: both are listed, as the panel does it.
void FramesPlugin::refresh()
{
    InterfaceManager *const robot = zepletInterface();
    const QStringList names[]
        = {robot->getToolList(), robot->getWobjList(), robot->getSpeedList(), robot->getZoneList()};
    const QString selected[]
        = {robot->getCurTool(), robot->getCurWobj(), names[2].value(0), names[3].value(0)};
    for (int i = 0; i < m_lists.size(); ++i) {
        m_lists[i]->clear();
        for (const QString &name : names[i])
            (new QListWidgetItem(name, m_lists[i]))->setSizeHint({0, 53}); // a finger's width
        m_lists[i]->setCurrentRow(names[i].indexOf(selected[i])); // none, if it is gone
    }
    describe();
}

void FramesPlugin::describe()
{
    QStringList chosen;
    for (const QListWidget *list : qAsConst(m_lists))
        chosen.append(list->currentItem() ? list->currentItem()->text() : QString());
    if (chosen.contains(QString()))
        return m_motion->setText(
            tr("A choice is missing. Where a list is empty, connect the controller."));
    m_motion->setText(tr("With %1 in %2, speed %3, zone %4.")
                          .arg(chosen.at(0), chosen.at(1), chosen.at(2), chosen.at(3)));
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new FramesPlugin(parent); });
    return true;
}();

#include "framesplugin.moc"
