// Counts parts with event types of its own. Shows ZepletEvent with its properties,
// registerCustomEventType(), publish() and publishAsync(), every filter, subscribeOnce(), the bus's
// statistics, and how to leave it.
#include <zeplet/zeplet.h>

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTextDocument>
#include <functional>

#include <utility>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("events");
const QString goodProperty = QStringLiteral("good");
const QString operatorProperty = QStringLiteral("operator"); // only where a person said it
constexpr int batchSize = 10;

// Handed out once in the process: a plugin that is loaded again keeps its numbers.
ZepletEventType partDone()
{
    static const ZepletEventType type = zepletEvent()->registerCustomEventType("PartDone");
    return type;
}

ZepletEventType batchFull()
{
    static const ZepletEventType type = zepletEvent()->registerCustomEventType("BatchFull");
    return type;
}

ZepletEventType shiftStarted()
{
    static const ZepletEventType type = zepletEvent()->registerCustomEventType("ShiftStarted");
    return type;
}

using Sentence = std::function<QString()>; // to be said again in another language
} // namespace

class EventsPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit EventsPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(QT_TRANSLATE_NOOP("navigation", "Part counter"));
    }

    void init() override;
    void detach() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void translate();
    void say(const Sentence &sentence);
    void createButtons(QGridLayout *layout);
    void followBus();
    void count();
    void report(bool good, const QString &person);
    void add(const ZepletEvent &event);
    void askOnce();
    void startShift();
    void refresh();

    QPointer<QWidget> m_page;
    QLabel *m_counts = nullptr;
    QLabel *m_bus = nullptr;
    QLabel *m_notice = nullptr;
    Sentence m_sentence
        = [] { return tr("Say of each part whether it is good. Each program that ends is one."); };
    QListWidget *m_journal = nullptr;
    QString m_question; ///< the subscription that waits for the next part
    ZepletEvent m_last; ///< of type None until there is a part
    quint64 m_shiftStart = 0; ///< events with smaller numbers belong to the shift before
    int m_good = 0, m_rejected = 0;
    bool m_runs = false;
};

void EventsPlugin::init()
{
    m_page = new QWidget;
    m_page->installEventFilter(this);
    auto *layout = new QGridLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    m_counts = new QLabel;
    m_counts->setObjectName("counts");
    m_counts->setProperty("role", "heading");
    m_journal = new QListWidget;
    m_notice = new QLabel;
    m_notice->setWordWrap(true);
    m_bus = new QLabel;
    m_bus->setWordWrap(true);
    layout->addWidget(m_counts, 0, 0, 1, 5);
    layout->addWidget(m_journal, 2, 0, 1, 5);
    layout->addWidget(m_notice, 3, 0, 1, 5);
    layout->addWidget(m_bus, 4, 0, 1, 5);
    createButtons(layout);
    translate();
    CreateCenterWidget(pluginName, m_page);
    count();
    followBus();
    startShift();
}

// The page hears of another language.
bool EventsPlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translate();
    return PluginBase::eventFilter(watched, event);
}

void EventsPlugin::translate()
{
    for (QPushButton *button : m_page->findChildren<QPushButton *>())
        button->setText(tr(qUtf8Printable(button->objectName()))); // its name is in English
    say(m_sentence);
    refresh();
}

void EventsPlugin::say(const Sentence &sentence)
{
    m_sentence = sentence;
    m_notice->setText(m_sentence());
}

// Nobody can publish these types any more: what others subscribed to them ends, too.
void EventsPlugin::detach()
{
    delete m_page;
    ZepletEventSystem *const bus = ZepletEventSystem::existingInstance(); // not to make a new one
    if (!bus)
        return;
    bus->unsubscribeByPlugin(pluginName);
    for (ZepletEventType type : {partDone(), batchFull(), shiftStarted()})
        bus->unsubscribeByType(type);
}

void EventsPlugin::createButtons(QGridLayout *layout)
{
    const auto addButton = [=](int column, const char *text) {
        auto *button = new QPushButton;
        button->setObjectName(text);
        layout->addWidget(button, 1, column);
        return button;
    };
    connect(addButton(0, QT_TR_NOOP("Good part")), &QPushButton::clicked, this,
            [this] { report(true, tr("operator")); });
    connect(addButton(1, QT_TR_NOOP("Rejected part")), &QPushButton::clicked, this,
            [this] { report(false, tr("operator")); });
    connect(addButton(2, QT_TR_NOOP("Check the next one")), &QPushButton::clicked, this,
            &EventsPlugin::askOnce);
    QPushButton *const pause = addButton(3, QT_TR_NOOP("Pause"));
    pause->setCheckable(true);
    connect(pause, &QPushButton::toggled, this, [this](bool paused) {
        if (paused)
            zepletEvent()->unsubscribeByTypeAndPlugin(pluginName, partDone());
        else
            count();
    });
    connect(addButton(4, QT_TR_NOOP("New shift")), &QPushButton::clicked, this,
            &EventsPlugin::startShift);
}

// The bus emits these signals in the middle of its work, the last two under its lock: queued slots
// look at it later.
void EventsPlugin::followBus()
{
    ZepletEventSystem *const bus = ZepletEventSystem::instance();
    const auto look = [this] { refresh(); };
    connect(bus, &ZepletEventSystem::eventPublished, m_page, look, Qt::QueuedConnection);
    connect(bus, &ZepletEventSystem::subscriptionAdded, m_page, look, Qt::QueuedConnection);
    connect(bus, &ZepletEventSystem::subscriptionRemoved, m_page, look, Qt::QueuedConnection);

    // The panel also tells of the first state that it learns: only what started can end.
    bus->subscribe(
        RCRunStart, [this](auto &) { m_runs = true; }, pluginName, m_page);
    bus->subscribe(
        RCRunStop,
        [this](auto &) {
            if (std::exchange(m_runs, false))
                report(true, QString());
        },
        pluginName, m_page);
    bus->subscribe(NetworkDisconnected, adaptNetworkCallback([this] {
                       say([] { return tr("The controller is gone. Parts by hand still count."); });
                   }),
                   pluginName, m_page);
    bus->subscribeFiltered(
        batchFull(), filterBySource(QStringLiteral("event*")),
        [this](const ZepletEvent &event) {
            say([good = event.data.toInt()] {
                return tr("Change the box: %1 parts are good.").arg(good);
            });
        },
        pluginName, m_page);
}

void EventsPlugin::count()
{
    const auto subscribe = [this](const ZepletEventHandler::Filter &filter, const auto &action) {
        zepletEvent()->subscribeFiltered(
            partDone(), filter,
            [=](const ZepletEvent &event) {
                if (event.seq >= m_shiftStart)
                    action(event);
            },
            pluginName, m_page);
    };
    subscribe(filterByPropertyValue(goodProperty, true), [this](auto &) {
        if (++m_good % batchSize == 0) // async: everyone hears of the part first
            zepletEvent()->publishAsync(batchFull(), m_good, pluginName);
    });
    subscribe(filterByPropertyValue(goodProperty, false), [this](auto &) { ++m_rejected; });
    subscribe(filterByProperty(operatorProperty), [this](const ZepletEvent &event) { add(event); });
}

// A part of the program is told from within another event's delivery: it waits for its turn.
void EventsPlugin::report(bool good, const QString &person)
{
    ZepletEvent event(partDone(), pluginName, tr("part"));
    event.setProperty(goodProperty, good);
    if (person.isEmpty())
        return zepletEvent()->publishAsync(event);
    event.setProperty(operatorProperty, person);
    zepletEvent()->publish(event);
}

void EventsPlugin::add(const ZepletEvent &event)
{
    m_last = event;
    m_last.removeProperty(operatorProperty); // the journal names no persons
    QStringList properties;
    for (const QString &name : m_last.propertyNames())
        properties.append(name + " = " + m_last.property(name).toString());
    const QString text
        = QStringLiteral("%1   %2   %3")
              .arg(zepletEvent()->customEventTypeName(m_last.type),
                   m_last.timestamp.toLocalTime().toString("hh:mm:ss"), properties.join(", "));
    auto *item = new QListWidgetItem(text);
    item->setSizeHint({0, 53}); // a finger's width
    item->setToolTip(Qt::convertFromPlainText(m_last.toString())); // data is no markup
    m_journal->insertItem(0, item);
}

// A second tap takes the question back.
void EventsPlugin::askOnce()
{
    if (zepletEvent()->hasSubscription(m_question)) {
        zepletEvent()->unsubscribe(m_question);
        return say([] { return tr("The next part is not checked."); });
    }
    m_question = zepletEvent()->subscribeOnce(
        partDone(),
        [this](const ZepletEvent &event) {
            const bool byHand = event.hasProperty(operatorProperty);
            say([=] {
                return byHand ? tr("Measure this part now.")
                              : tr("Stop the conveyor and measure this part now.");
            });
        },
        pluginName, m_page);
    say([] { return tr("The next part is to be checked."); });
}

// A part that is still on its way has a smaller number than the shift.
void EventsPlugin::startShift()
{
    m_shiftStart = ZepletEvent::generateSequenceId();
    m_good = m_rejected = 0;
    m_last = ZepletEvent();
    m_journal->clear();
    zepletEvent()->cleanupInvalidSubscriptions(); // else they count below
    zepletEvent()->resetStatistics();
    zepletEvent()->publish(shiftStarted(), QVariant(), pluginName);
}

void EventsPlugin::refresh()
{
    const ZepletEventSystem *const bus = zepletEvent();
    const QString counts = tr("%1 good, %2 rejected").arg(m_good).arg(m_rejected);
    const QString time = m_last.timestamp.toLocalTime().toString("hh:mm:ss");
    m_counts->setText(m_last.type == None ? counts : tr("%1, the last at %2").arg(counts, time));
    m_bus->setText(tr("This shift: %1 events, %2 calls. %3 subscriptions to %4 types, %5 of this "
                      "plugin, %6 to "
                      "parts.")
                       .arg(bus->totalEventsPublished())
                       .arg(bus->totalEventsHandled())
                       .arg(bus->totalSubscriptionCount())
                       .arg(bus->registeredEventTypes().size())
                       .arg(bus->subscriptionCount(pluginName))
                       .arg(bus->subscriptionCount(partDone())));
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new EventsPlugin(parent); });
    return true;
}();

#include "eventsplugin.moc"
