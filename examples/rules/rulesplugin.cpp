// Rules that the operator switches on: when something happens, a sentence appears. Shows the ready
// handlers, a handler of one's own, and how ZepletSubscriptionManager keeps subscriptions apart
// from the panel's bus.
#include <zeplet/events/zepleteventhandlerfiltered.h>
#include <zeplet/events/zepleteventhandleroneshot.h>
#include <zeplet/events/zepleteventhandlerwithcontext.h>
#include <zeplet/events/zepletsubscriptionmanager.h>
#include <zeplet/zeplet.h>

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTextDocument>
#include <functional>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("rules");
const QString shiftGroup = QStringLiteral("shift"), serviceGroup = QStringLiteral("service");

/** Calls a function for every second event: a handler that none of the ready ones is. */
class EverySecond : public ZepletEventHandler
{
public:
    EverySecond(ZepletEventType type, Callback callback, const QString &name)
        : m_type(type)
        , m_callback(std::move(callback))
        , m_name(name)
    {
    }

    void handleEvent(const ZepletEvent &event) override
    {
        m_due = !m_due;
        if (!m_due)
            m_callback(event);
    }
    ZepletEventType eventType() const override { return m_type; }
    QString handlerName() const override { return m_name; }

private:
    const ZepletEventType m_type;
    const Callback m_callback;
    const QString m_name;
    bool m_due = false;
};

using Sentence = std::function<QString()>; // to be said again in another language
} // namespace

class RulesPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit RulesPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(QT_TRANSLATE_NOOP("navigation", "My rules"));
    }

    void init() override;
    void detach() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void translate();
    void say(const Sentence &sentence);
    using Rule = ZepletSubscriptionManager::SubscriptionPointer;

    void createRuleButtons(QGridLayout *layout);
    void createListButtons(QGridLayout *layout);
    ZepletEventHandler::Callback saying(const char *sentence);
    void add(const QString &group, ZepletEventHandler *handler);
    void deliver(const ZepletEvent &event);
    void refresh();
    Rule selected() const;
    static QString nameOf(const ZepletEventSubscription &rule);

    ZepletSubscriptionManager m_rules;
    ZepletEventSubscription m_last; ///< what an event reached last; without a handler: none yet
    QPointer<QWidget> m_page;
    QListWidget *m_list = nullptr;
    QLabel *m_summary = nullptr;
    QLabel *m_notice = nullptr;
    Sentence m_sentence = [] { return tr("Tap what you want to be told of."); };
};

void RulesPlugin::init()
{
    m_page = new QWidget;
    m_page->installEventFilter(this);
    auto *layout = new QGridLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    m_list = new QListWidget;
    m_summary = new QLabel;
    m_notice = new QLabel;
    m_notice->setObjectName("notice");
    m_notice->setProperty("role", "heading");
    layout->addWidget(m_notice, 0, 0, 1, 5);
    createRuleButtons(layout);
    layout->addWidget(m_list, 2, 0, 1, 5);
    createListButtons(layout);
    layout->addWidget(m_summary, 4, 0, 1, 5);
    translate();
    CreateCenterWidget(pluginName, m_page);
    for (ZepletEventType type : {RCPowerStatusChange, RCRunModelChange, RCRunStart, RCRunStop})
        zepletEvent()->subscribe(
            type, [this](const ZepletEvent &event) { deliver(event); }, pluginName, m_page);
}

// The page hears of another language.
bool RulesPlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translate();
    return PluginBase::eventFilter(watched, event);
}

void RulesPlugin::translate()
{
    for (QPushButton *button : m_page->findChildren<QPushButton *>())
        button->setText(tr(qUtf8Printable(button->objectName()))); // its name is in English
    say(m_sentence);
    refresh();
}

void RulesPlugin::say(const Sentence &sentence)
{
    m_sentence = sentence;
    m_notice->setText(m_sentence());
}

// The rules first: they may speak of the page.
void RulesPlugin::detach()
{
    m_rules.clear();
    delete m_page;
}

void RulesPlugin::createRuleButtons(QGridLayout *layout)
{
    const auto addButton = [=](const char *text, const QString &group, const auto &makeHandler) {
        auto *button = new QPushButton;
        button->setObjectName(text);
        layout->addWidget(button, 1, layout->count() - 1);
        connect(button, &QPushButton::clicked, this, [=] { add(group, makeHandler(text)); });
    };
    addButton(QT_TR_NOOP("Motors switch"), serviceGroup, [this](const QString &name) {
        return new ZepletEventHandlerFunc(RCPowerStatusChange,
                                          saying(QT_TR_NOOP("The motors switched.")), name);
    });
    addButton(QT_TR_NOOP("Motors go on"), serviceGroup, [this](const QString &name) {
        const auto on = [](const ZepletEvent &) { return zepletInterface()->getRobotEleStatus(); };
        return new ZepletEventHandlerFiltered(
            RCPowerStatusChange, on, saying(QT_TR_NOOP("The motors are on: keep clear.")), name);
    });
    addButton(QT_TR_NOOP("Mode changes"), shiftGroup, [this](const QString &name) {
        return new ZepletEventHandlerWithContext(
            RCRunModelChange, m_page, saying(QT_TR_NOOP("The operating mode changed.")), name);
    });
    addButton(QT_TR_NOOP("Next start"), shiftGroup, [this](const QString &name) {
        return new ZepletEventHandlerOneShot(RCRunStart,
                                             saying(QT_TR_NOOP("The program has started.")), name);
    });
    addButton(QT_TR_NOOP("Box is full"), shiftGroup, [this](const QString &name) {
        return new EverySecond(RCRunStop, saying(QT_TR_NOOP("Two parts are done: change the box.")),
                               name);
    });
}

void RulesPlugin::createListButtons(QGridLayout *layout)
{
    const auto addButton = [=](int column, const char *text, const auto &action) {
        auto *button = new QPushButton;
        button->setObjectName(text);
        layout->addWidget(button, 3, column);
        connect(button, &QPushButton::clicked, this, [=] {
            if (const Rule rule = selected())
                action(rule);
            else
                say([] { return tr("Select a rule first."); });
            refresh();
        });
    };
    addButton(0, QT_TR_NOOP("Try"), [](const Rule &rule) {
        rule->handler->handleEvent(ZepletEvent(rule->eventType, pluginName, QVariant()));
        rule->incrementInvokeCount();
    });
    addButton(1, QT_TR_NOOP("Seen"), [](const Rule &rule) { rule->touch(); });
    addButton(2, QT_TR_NOOP("Remove"),
              [this](const Rule &rule) { m_rules.removeSubscription(rule->id); });
    addButton(3, QT_TR_NOOP("Remove its kind"),
              [this](const Rule &rule) { m_rules.removeSubscriptionsByType(rule->eventType); });
    addButton(4, QT_TR_NOOP("Remove its group"),
              [this](const Rule &rule) { m_rules.removeSubscriptionsByPlugin(rule->pluginName); });
}

ZepletEventHandler::Callback RulesPlugin::saying(const char *sentence)
{
    return [=](const ZepletEvent &) { say([=] { return tr(sentence); }); };
}

// One rule of a name is enough: the new one takes over the id, and with it the old one's place.
void RulesPlugin::add(const QString &group, ZepletEventHandler *handler)
{
    QString id = ZepletEventSubscription::generateSubscriptionId();
    for (const Rule &other : m_rules.getSubscriptionsByPlugin(group)) {
        if (other->handlerName() == handler->handlerName())
            id = other->id;
    }
    const bool isNew = !m_rules.hasSubscription(id);
    m_rules.addSubscription(ZepletEventSubscription(id, group, handler->eventType(),
                                                    QSharedPointer<ZepletEventHandler>(handler)));
    say([=] { return isNew ? tr("The rule is there.") : tr("The rule starts anew."); });
    refresh();
}

// The records count what they delivered; those that fired once are not kept.
void RulesPlugin::deliver(const ZepletEvent &event)
{
    for (const Rule &rule : m_rules.getSubscriptionsByType(event.type)) {
        rule->handleEvent(event);
        m_last = *rule;
    }
    m_rules.cleanupInvalidSubscriptions();
    refresh();
}

void RulesPlugin::refresh()
{
    const QString id = selected() ? selected()->id : QString();
    m_list->clear();
    for (const QString &each : m_rules.allSubscriptionIds()) {
        const Rule rule = m_rules.getSubscription(each);
        const QString last = rule->lastInvokedTime.toLocalTime().toString("hh:mm:ss");
        const QString state = !rule->isValid() ? tr("done")
            : rule->isOneShot()                ? tr("waits")
                                               : tr("events: %1").arg(rule->invokeCount);
        auto *item = new QListWidgetItem(
            QStringLiteral("%1: %2, %3, %4").arg(rule->pluginName, nameOf(*rule), state, last),
            m_list);
        item->setData(Qt::UserRole, each);
        item->setToolTip(Qt::convertFromPlainText(rule->toString())); // a name is no markup
        item->setSizeHint({0, 53}); // a finger's width
        if (each == id)
            m_list->setCurrentItem(item);
    }
    m_summary->setText(tr("%1 rules for %2 kinds of events, %3 of them for the motors; %4 for the "
                          "shift, %5 for service. Last event: %6.")
                           .arg(m_rules.validSubscriptionCount())
                           .arg(m_rules.registeredEventTypes().size())
                           .arg(m_rules.subscriptionCountByType(RCPowerStatusChange))
                           .arg(m_rules.subscriptionIds(shiftGroup).size())
                           .arg(m_rules.subscriptionCountByPlugin(serviceGroup))
                           .arg(m_last.handlerName().isEmpty() ? tr("none") : nameOf(m_last)));
}

RulesPlugin::Rule RulesPlugin::selected() const
{
    const QListWidgetItem *item = m_list->currentItem();
    return item ? m_rules.getSubscription(item->data(Qt::UserRole).toString()) : Rule();
}

// Handlers have their names in English: those that the operator sees follow the language.
QString RulesPlugin::nameOf(const ZepletEventSubscription &rule)
{
    return tr(qUtf8Printable(rule.handlerName()));
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new RulesPlugin(parent); });
    return true;
}();

#include "rulesplugin.moc"
