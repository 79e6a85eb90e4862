// The program variables of the open project: to list, add, change and delete them.
#include <zeplet/zeplet.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>
#include <functional>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("variables");

// The type of a new variable is that of its value: a whole number, a number, a flag or a text.
QVariant valueOf(const QString &text)
{
    bool isInt = false, isDouble = false;
    const int number = text.toInt(&isInt);
    const double real = text.toDouble(&isDouble);
    if (isInt)
        return number;
    if (isDouble)
        return real;
    if (text == QLatin1String("true") || text == QLatin1String("false"))
        return text == QLatin1String("true");
    return text;
}

QVariant valueIn(const QJsonObject &variable)
{
    return variable["value"].toObject().value("[0][0][0]").toVariant();
}
} // namespace

class VariablesPage : public QWidget
{
    Q_OBJECT

public:
    VariablesPage();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void addButton(QLayout *line, const QString &text, const std::function<void()> &action);
    void refresh();
    bool exists() const;
    void add();
    void change();
    void remove();
    bool isReady();
    void say(const QString &sentence);

    QLineEdit *m_name = new QLineEdit;
    QLineEdit *m_value = new QLineEdit;
    QCheckBox *m_persistent = new QCheckBox(tr("Persistent"));
    QTableWidget *m_table = new QTableWidget(0, 3);
    QLabel *m_notice = new QLabel;
};

VariablesPage::VariablesPage()
{
    auto *title = new QLabel(tr("My variables"));
    title->setProperty("role", "heading");
    m_name->setPlaceholderText(tr("Name"));
    m_value->setPlaceholderText(tr("5, 2.5, true, text"));
    m_table->setHorizontalHeaderLabels({tr("Variable"), tr("Type"), tr("Value")});
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(53); // a finger's width
    m_table->setEditTriggers(QTableWidget::NoEditTriggers);
    m_table->setSelectionBehavior(QTableWidget::SelectRows);
    m_table->setShowGrid(false);
    m_notice->setTextFormat(Qt::PlainText); // a name is no markup
    m_notice->setWordWrap(true);

    auto *line = new QHBoxLayout;
    line->addWidget(m_name, 1);
    line->addWidget(m_value, 1);
    line->addWidget(m_persistent);
    addButton(line, tr("Add"), [this] { add(); });
    addButton(line, tr("Change"), [this] { change(); });
    addButton(line, tr("Delete"), [this] { remove(); });
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    layout->addWidget(title);
    layout->addLayout(line);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_notice);
    connect(m_table, &QTableWidget::cellClicked, this, [this](int row) {
        m_name->setText(m_table->item(row, 0)->text());
        m_value->setText(m_table->item(row, 2)->text());
    });
    say(tr("Type a name and a value, then tap Add."));
}

void VariablesPage::addButton(QLayout *line, const QString &text,
                              const std::function<void()> &action)
{
    auto *button = new QPushButton(text);
    line->addWidget(button);
    connect(button, &QPushButton::clicked, this, action);
}

void VariablesPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

void VariablesPage::refresh()
{
    const QStringList names = zepletInterface()->getVarDataList(QString());
    m_table->setRowCount(names.size());
    for (int row = 0; row < names.size(); ++row) {
        const QJsonObject variable = zepletInterface()->getVarObjDataByName(names[row]);
        const QString texts[]
            = {names[row], variable["type"].toString(), valueIn(variable).toString()};
        for (int column = 0; column < 3; ++column)
            m_table->setItem(row, column, new QTableWidgetItem(texts[column]));
    }
}

bool VariablesPage::isReady()
{
    if (m_name->text().isEmpty())
        say(tr("Type a name first."));
    else if (!zepletInterface()->getRobotConnected())
        say(tr("Connect the controller first: it has to agree."));
    else
        return true;
    return false;
}

bool VariablesPage::exists() const
{
    return !zepletInterface()->getVarObjDataByName(m_name->text()).isEmpty();
}

void VariablesPage::add()
{
    const QString name = m_name->text();
    if (!isReady())
        return;
    if (exists())
        return say(tr("There is a \"%1\" already. Change it, or take another name.").arg(name));
    if (zepletInterface()->addVarData(name, valueOf(m_value->text()), m_persistent->isChecked()))
        say(tr("\"%1\" is added.").arg(name));
    else if (exists()) // only a change that the controller took stays
        say(tr("\"%1\" is added, but var.json is not on the controller: see the log.").arg(name));
    else
        say(tr("The controller does not take a \"%1\" of this type.").arg(name));
}

void VariablesPage::change()
{
    const QString name = m_name->text();
    if (!isReady())
        return;
    if (!exists())
        return say(tr("There is no \"%1\". Add it first.").arg(name));
    const QVariant value = valueOf(m_value->text());
    if (zepletInterface()->updateVarData(name, value))
        say(tr("\"%1\" is changed.").arg(name));
    else if (valueIn(zepletInterface()->getVarObjDataByName(name)) == value)
        say(tr("\"%1\" is changed, but var.json is not on the controller: see the log.").arg(name));
    else
        say(tr("\"%1\" keeps its value: it is a connection, or the controller does not take this "
               "value.")
                .arg(name));
}

void VariablesPage::remove()
{
    const QString name = m_name->text();
    if (!isReady())
        return;
    if (!exists())
        return say(tr("There is no \"%1\".").arg(name));
    if (zepletInterface()->delVarData(name))
        say(tr("\"%1\" is deleted.").arg(name));
    else if (zepletInterface()->getVarObjDataByName(name).isEmpty())
        say(tr("\"%1\" is deleted, but var.json on the controller is old: see the log.").arg(name));
    else
        say(tr("\"%1\" stays: it is a connection, or the program needs it.").arg(name));
}

void VariablesPage::say(const QString &sentence)
{
    m_notice->setText(sentence);
    refresh();
}

class VariablesPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit VariablesPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(tr("My variables"));
    }

    void init() override { CreateCenterWidget(pluginName, m_page = new VariablesPage); }
    void detach() override { delete m_page; }

private:
    QPointer<VariablesPage> m_page;
};

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new VariablesPlugin(parent); });
    return true;
}();

#include "variablesplugin.moc"
