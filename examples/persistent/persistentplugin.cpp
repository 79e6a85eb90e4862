// Persistent variables of the robot's programs: to watch them and to write new values. Shows the
// operations for them, and a watch of the hub key that brings their values.
#include <zeplet/zeplet.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>
#include <functional>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("persistent");
const QString valuesKey = QStringLiteral("monitor.values"); // the hub's, of what is selected

// A number or "true" as what it is; anything else as text.
QVariant valueOf(const QString &text)
{
    const QJsonArray values = QJsonDocument::fromJson('[' + text.toUtf8() + ']').array();
    return values.size() == 1 ? values.at(0).toVariant() : QVariant(text);
}

using Sentence = std::function<QString()>; // to be said again in another language
} // namespace

class PersistentPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit PersistentPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(QT_TRANSLATE_NOOP("navigation", "Persistent"));
    }

    void init() override;
    void detach() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void translate();
    void say(const Sentence &sentence);
    QLayout *createLine();
    void watch();
    int select(const QVector<QString> &names);
    void write();
    void follow(const QVariantMap &values);
    void tell(int code, const Sentence &done);

    QPointer<QWidget> m_page;
    QLabel *m_title = nullptr;
    QLineEdit *m_name = nullptr;
    QLineEdit *m_value = nullptr;
    QTableWidget *m_table = nullptr;
    QLabel *m_notice = nullptr;
    Sentence m_sentence = [] { return tr("Type the name of a variable, then tap Watch."); };
    QVector<QString> m_names; ///< a row each
};

void PersistentPlugin::init()
{
    m_page = new QWidget;
    m_page->installEventFilter(this);
    m_title = new QLabel;
    m_title->setProperty("role", "heading");
    m_table = new QTableWidget(0, 2);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(53); // a finger's width
    m_table->setSelectionBehavior(QTableWidget::SelectRows);
    m_table->setEditTriggers(QTableWidget::NoEditTriggers);
    m_table->setShowGrid(false);
    m_notice = new QLabel;
    m_notice->setTextFormat(Qt::PlainText); // a name is no markup
    auto *layout = new QVBoxLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    layout->addWidget(m_title);
    layout->addLayout(createLine());
    layout->addWidget(m_table, 1);
    layout->addWidget(m_notice);
    translate();
    CreateCenterWidget(pluginName, m_page);

    // The first starts the delivery, the second ends with the page.
    zepletInterface()->connectNexoData(pluginName, valuesKey, {});
    zepletEvent()->subscribeFiltered(
        NexoDataChange, filterByServiceKey(valuesKey),
        adaptNexoCallback([this](const QVariant &values) { follow(values.toMap()); }), pluginName,
        m_page);
    // A controller that was started again has forgotten what is watched.
    const auto selectAgain = [this](auto &) {
        if (!m_names.isEmpty())
            select(m_names);
    };
    zepletEvent()->subscribe(NetworkConnected, selectAgain, pluginName, m_page);
}

// The page hears of another language.
bool PersistentPlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translate();
    return PluginBase::eventFilter(watched, event);
}

void PersistentPlugin::translate()
{
    for (QPushButton *button : m_page->findChildren<QPushButton *>())
        button->setText(tr(qUtf8Printable(button->objectName()))); // its name is in English
    m_title->setText(tr("Persistent variables"));
    m_name->setPlaceholderText(tr("Name of a variable"));
    m_value->setPlaceholderText(tr("Value for the selected one"));
    m_table->setHorizontalHeaderLabels({tr("Variable"), tr("Value")});
    say(m_sentence);
}

void PersistentPlugin::say(const Sentence &sentence)
{
    m_sentence = sentence;
    m_notice->setText(m_sentence());
}

// The delivery has to be ended, else the panel goes on with it; and so has the selection, else the
// controller does.
void PersistentPlugin::detach()
{
    if (!m_names.isEmpty())
        select({});
    for (const QString &id : zepletEvent()->totalSubscriptionIds(pluginName))
        zepletInterface()->disconnectNexoData(pluginName, valuesKey, id);
    delete m_page;
}

QLayout *PersistentPlugin::createLine()
{
    auto *line = new QHBoxLayout;
    m_name = new QLineEdit;
    m_value = new QLineEdit;
    auto *watch = new QPushButton;
    watch->setObjectName(QT_TR_NOOP("Watch"));
    auto *write = new QPushButton;
    write->setObjectName(QT_TR_NOOP("Write"));
    for (QWidget *widget : std::initializer_list<QWidget *> {m_name, watch, m_value, write})
        line->addWidget(widget);
    connect(watch, &QPushButton::clicked, this, &PersistentPlugin::watch);
    connect(write, &QPushButton::clicked, this, &PersistentPlugin::write);
    return line;
}

void PersistentPlugin::watch()
{
    const QString name = m_name->text().trimmed();
    if (!zepletInterface()->getRobotConnected())
        return say([] { return tr("Connect the controller first, then tap Watch again."); });
    if (name.isEmpty() || m_names.contains(name))
        return say([] { return tr("Type the name of a variable that is not in the table yet."); });
    const int code = select(m_names + QVector<QString> {name});
    const QString value = zepletInterface()->getValuesOfPERSVars({name}).constFirst();
    tell(code, [=] {
        return (value.isEmpty() ? tr("\"%1\" has no value yet, or another name.")
                                : tr("\"%1\" is watched. Select it to write a value."))
            .arg(name);
    });
    if (code != 0)
        return;
    m_names.append(name);
    m_table->setRowCount(m_names.size());
    m_table->setItem(m_names.size() - 1, 0, new QTableWidgetItem(name));
    m_table->setItem(m_names.size() - 1, 1, new QTableWidgetItem(value));
}

// The selection belongs to the whole panel: what others watch stays in it.
int PersistentPlugin::select(const QVector<QString> &names)
{
    QVector<QString> all = names;
    for (const QVariant &other : zepletInterface()->getRegistedPERSVars()) {
        if (!all.contains(other.toString()) && !m_names.contains(other.toString()))
            all.append(other.toString());
    }
    return zepletInterface()->registPERSVars(all);
}

void PersistentPlugin::write()
{
    if (!zepletInterface()->getRobotConnected())
        return say([] { return tr("Connect the controller first, then tap Write again."); });
    const QString name = m_names.value(m_table->currentRow());
    if (name.isEmpty())
        return say([] { return tr("Select a variable in the table first."); });
    tell(zepletInterface()->setValuesOfPERSVars({name}, {valueOf(m_value->text())}), [=] {
        return tr("Sent to \"%1\". The table shows what the controller made of it.").arg(name);
    });
}

void PersistentPlugin::follow(const QVariantMap &values)
{
    for (auto it = values.begin(); it != values.end(); ++it) {
        if (m_names.contains(it.key()))
            m_table->item(m_names.indexOf(it.key()), 1)->setText(it->toString());
    }
}

// Each result code is a sentence that says what to do next.
void PersistentPlugin::tell(int code, const Sentence &done)
{
    if (code == 0)
        return say(done);
    if (code == -1)
        return say([] { return tr("Only finite numbers can be sent. Type another value."); });
    const QString version = zepletInterface()->getNodeData("brisa.r.version").toString();
    say([=] {
        return tr("The controller has version \"%1\"; 2.3, 3.0, 3.1 or 3.2 is needed.")
            .arg(version);
    });
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName,
                           [](QObject *parent) { return new PersistentPlugin(parent); });
    return true;
}();

#include "persistentplugin.moc"
