// The robot's signals with their live values, and the registers; digital signals can be set. Shows
// the operations for signals and registers, and a watch of a notification of the controller.
#include <ostrel/moduleobject.h>
#include <zeplet/zeplet.h>

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>
#include <functional>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("signals");
const QString valuePath = QStringLiteral("io.signal_value"); // the controller's notification

const QString digitalOutput = QStringLiteral("DO"); // the type that can be toggled

QString valueText(const QVariant &value)
{
    if (value.userType() != QMetaType::Bool)
        return value.toString();
    return value.toBool() ? QStringLiteral("●  1") : QStringLiteral("○  0");
}

QTableWidget *makeTable()
{
    auto *table = new QTableWidget(0, 2);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setHighlightSections(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(53); // a finger's width
    table->setEditTriggers(QTableWidget::NoEditTriggers);
    table->setSelectionBehavior(QTableWidget::SelectRows);
    table->setShowGrid(false);
    return table;
}

void addRow(QTableWidget *table, const QString &name, const QString &value)
{
    const int row = table->rowCount();
    table->insertRow(row);
    table->setItem(row, 0, new QTableWidgetItem(name));
    table->setItem(row, 1, new QTableWidgetItem(value));
}

using Sentence = std::function<QString()>; // to be said again in another language
} // namespace

class SignalsPage : public QWidget
{
    Q_OBJECT

public:
    SignalsPage();
    ~SignalsPage() override;

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void translate();
    void say(const Sentence &sentence);
    void refresh();
    void showRegisters();
    void follow(const QVariantMap &values);
    void write(bool value);
    void toggle();

    QComboBox *m_type = new QComboBox;
    QTableWidget *m_signals = makeTable();
    QTableWidget *m_registers = makeTable();
    QLabel *m_title = new QLabel;
    QPushButton *m_set = new QPushButton;
    QPushButton *m_reset = new QPushButton;
    QPushButton *m_toggle = new QPushButton;
    QPushButton *m_read = new QPushButton;
    QLabel *m_notice = new QLabel;
    Sentence m_sentence = [] { return QString(); };
};

SignalsPage::SignalsPage()
{
    m_title->setProperty("role", "heading");
    m_registers->setSelectionMode(QTableWidget::NoSelection);
    auto *header = new QHBoxLayout;
    header->addWidget(m_title, 1);
    for (QWidget *widget :
         std::initializer_list<QWidget *> {m_type, m_set, m_reset, m_toggle, m_read})
        header->addWidget(widget);
    auto *tables = new QHBoxLayout;
    tables->addWidget(m_signals, 1);
    tables->addWidget(m_registers, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    layout->addLayout(header);
    layout->addLayout(tables, 1);
    layout->addWidget(m_notice);
    translate();

    connect(m_type, QOverload<int>::of(&QComboBox::activated), this, &SignalsPage::refresh);
    connect(m_read, &QPushButton::clicked, this, &SignalsPage::refresh);
    connect(m_set, &QPushButton::clicked, this, [this] { write(true); });
    connect(m_reset, &QPushButton::clicked, this, [this] { write(false); });
    connect(m_toggle, &QPushButton::clicked, this, &SignalsPage::toggle);
    // The catalogue comes with the connection; later, since the panel is still busy with it now.
    connect(
        m("tavik.robot.io.signal_detail"), &ostrel::ModuleObject::changed, this,
        [this] {
            if (isVisible())
                refresh();
        },
        Qt::QueuedConnection);
    connect(m("tavik.robot.register._list"), &ostrel::ModuleObject::changed, this,
            &SignalsPage::showRegisters);
    // The first starts the delivery, the second ends with this page.
    zepletInterface()->connectRcNotify(pluginName, valuePath, {});
    zepletEvent()->subscribeFiltered(
        RCNotifyDataChange, filterByServiceKey(valuePath),
        adaptNexoCallback([this](const QVariant &values) { follow(values.toMap()); }), pluginName,
        this);
}

// The delivery has to be ended, else the panel goes on with it.
SignalsPage::~SignalsPage()
{
    for (const QString &id : zepletEvent()->totalSubscriptionIds(pluginName))
        zepletInterface()->disconnectRcNotify(pluginName, valuePath, id);
}

// Asking takes up to 1.6 s where the controller is slow: not before somebody looks.
void SignalsPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

void SignalsPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        translate();
}

void SignalsPage::translate()
{
    m_title->setText(tr("My signals"));
    m_set->setText(tr("Set to 1"));
    m_reset->setText(tr("Set to 0"));
    m_toggle->setText(tr("Toggle"));
    m_read->setText(tr("Read again"));
    const int type = qMax(0, m_type->currentIndex());
    m_type->clear();
    m_type->addItems({tr("Digital inputs"), tr("Digital outputs"), tr("Group inputs"),
                      tr("Group outputs"), tr("Analogue inputs"), tr("Analogue outputs")});
    m_type->setCurrentIndex(type);
    m_signals->setHorizontalHeaderLabels({tr("Signal"), tr("Value")});
    m_registers->setHorizontalHeaderLabels({tr("Register"), tr("Value")});
    say(m_sentence);
}

void SignalsPage::say(const Sentence &sentence)
{
    m_sentence = sentence;
    m_notice->setText(m_sentence());
}

void SignalsPage::refresh()
{
    const QStringList names = zepletInterface()->getIOByType(m_type->currentIndex() + 1);
    const QHash<QString, QVariant> values = zepletInterface()->getIOHash();
    m_signals->setRowCount(0);
    for (const QString &name : names)
        addRow(m_signals, name, valueText(values.value(name)));
    showRegisters();
    const bool answered = !values.isEmpty(), found = !names.isEmpty();
    say([=] {
        return !answered ? tr("No values came. Connect the controller, then tap Read again.")
            : !found     ? tr("The robot has no signals of this kind.")
                         : tr("Select a digital signal to set it.");
    });
}

// In the controller's order, which the hash does not keep.
void SignalsPage::showRegisters()
{
    const QHash<QString, QStringList> registers = zepletInterface()->getRegisterHash();
    m_registers->setRowCount(0);
    for (const QJsonValue each : zepletInterface()->getRegisterValue().toArray()) {
        const QString name = each["name"].toString();
        addRow(m_registers, name, registers.value(name).join(QStringLiteral(", ")));
    }
}

void SignalsPage::follow(const QVariantMap &values)
{
    for (int row = 0; row < m_signals->rowCount(); ++row) {
        const auto changed = values.find(m_signals->item(row, 0)->text());
        if (changed != values.end())
            m_signals->item(row, 1)->setText(valueText(*changed));
    }
}

void SignalsPage::write(bool value)
{
    if (!zepletInterface()->getRobotConnected())
        return say([] { return tr("Connect the controller first, then set the signal again."); });
    const int type = m_type->currentIndex() + 1;
    const int row = m_signals->currentRow();
    if (row < 0 || type > 2)
        return say([] { return tr("Select a digital input or output first."); });
    // Always 0: why a signal is refused, the panel tells the operator in its message line.
    zepletInterface()->setIOValue(m_signals->item(row, 0)->text(), type, value);
    say([] { return tr("Sent. If the value stays, the line below says why."); });
}

// The value of this moment, not the one in the table, which may be behind.
void SignalsPage::toggle()
{
    InterfaceManager *const robot = zepletInterface();
    const int row = m_signals->currentRow();
    const QString name = row < 0 ? QString() : m_signals->item(row, 0)->text();
    if (!robot->getIOByType(digitalOutput).contains(name))
        return say([] { return tr("Select a digital output first."); });
    robot->setIOValue(name, digitalOutput, !robot->getIOValue(name));
    say([] { return tr("Sent. If the value stays, the line below says why."); });
}

class SignalsPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit SignalsPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(QT_TRANSLATE_NOOP("navigation", "My signals"));
    }

    void init() override { CreateCenterWidget(pluginName, m_page = new SignalsPage); }
    void detach() override { delete m_page; }

private:
    QPointer<SignalsPage> m_page;
};

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new SignalsPlugin(parent); });
    return true;
}();

#include "signalsplugin.moc"
