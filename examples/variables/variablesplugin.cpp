// The program variables of the open project: to list, add, change and delete them, several at once
// too. Shows every operation for variables, and what a false of theirs can mean.
#include <ostrel/moduleobject.h>
#include <zeplet/zeplet.h>

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
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

bool exists(const QString &name)
{
    return !zepletInterface()->getVarObjDataByName(name).isEmpty();
}

QVariant storedValue(const QString &name)
{
    const QJsonObject variable = zepletInterface()->getVarObjDataByName(name);
    return variable["value"].toObject().value("[0][0][0]").toVariant();
}

using Sentence = std::function<QString()>; // to be said again in another language
} // namespace

class VariablesPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit VariablesPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(QT_TRANSLATE_NOOP("navigation", "My variables"));
    }

    void init() override;
    void detach() override { delete m_page; }
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void translate();
    void say(const Sentence &sentence);
    void refresh();
    void add(const QString &name, const QVariant &value, bool persistent);
    void change(const QString &name, const QVariant &value);
    void remove(const QString &name);
    void removeSelected();
    QStringList selectedNames() const;
    void tell(const char *sentence, const QString &name);

    QPointer<QWidget> m_page;
    QLineEdit *m_name = nullptr;
    QLineEdit *m_value = nullptr;
    QCheckBox *m_persistent = nullptr;
    QListWidget *m_list = nullptr;
    QLabel *m_notice = nullptr;
    Sentence m_sentence = [] { return tr("Type a name and a value, then tap Add."); };
};

void VariablesPlugin::init()
{
    m_page = new QWidget;
    m_page->installEventFilter(this);
    auto *layout = new QGridLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    m_name = new QLineEdit;
    m_value = new QLineEdit;
    m_persistent = new QCheckBox;
    m_list = new QListWidget;
    m_list->setSelectionMode(QListWidget::MultiSelection); // a tap each
    m_notice = new QLabel;
    m_notice->setTextFormat(Qt::PlainText); // a name is no markup
    m_notice->setWordWrap(true);
    layout->addWidget(m_name, 0, 0);
    layout->addWidget(m_value, 0, 1);
    layout->addWidget(m_persistent, 0, 2);
    layout->addWidget(m_list, 1, 0, 1, 6);
    layout->addWidget(m_notice, 2, 0, 1, 6);
    const auto addButton = [=](int column, const char *text, const auto &action) {
        auto *button = new QPushButton;
        button->setObjectName(text);
        layout->addWidget(button, 0, column);
        connect(button, &QPushButton::clicked, this, [=] {
            if (m_name->text().isEmpty())
                say([] { return tr("Type a name first."); });
            else if (!zepletInterface()->getRobotConnected())
                say([] { return tr("Connect the controller first: it has to agree."); });
            else
                action();
        });
    };
    addButton(3, QT_TR_NOOP("Add"),
              [this] { add(m_name->text(), valueOf(m_value->text()), m_persistent->isChecked()); });
    addButton(4, QT_TR_NOOP("Change"),
              [this] { change(m_name->text(), valueOf(m_value->text())); });
    addButton(5, QT_TR_NOOP("Delete"), [this] {
        if (selectedNames().size() > 1)
            removeSelected();
        else
            remove(m_name->text());
    });
    connect(m_list, &QListWidget::itemClicked, this, [this](QListWidgetItem *item) {
        m_name->setText(item->data(Qt::UserRole).toString());
        m_value->setText(storedValue(m_name->text()).toString());
    });
    refresh();
    translate();
    CreateCenterWidget(pluginName, m_page);
    connect(m("tavik.project.var._list"), &ostrel::ModuleObject::changed, m_page,
            [this] { refresh(); });
}

// The page hears of another language.
bool VariablesPlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translate();
    return PluginBase::eventFilter(watched, event);
}

void VariablesPlugin::translate()
{
    for (QPushButton *button : m_page->findChildren<QPushButton *>())
        button->setText(tr(qUtf8Printable(button->objectName()))); // its name is in English
    m_name->setPlaceholderText(tr("Name"));
    m_value->setPlaceholderText(tr("5, 2.5, true, text"));
    m_persistent->setText(tr("Persistent"));
    say(m_sentence);
}

void VariablesPlugin::say(const Sentence &sentence)
{
    m_sentence = sentence;
    m_notice->setText(m_sentence());
}

void VariablesPlugin::refresh()
{
    m_list->clear();
    for (const QString &name : zepletInterface()->getVarDataList(QString())) {
        auto *item = new QListWidgetItem(name + " = " + storedValue(name).toString(), m_list);
        item->setData(Qt::UserRole, name);
        item->setSizeHint({0, 53}); // a finger's width
    }
}

void VariablesPlugin::add(const QString &name, const QVariant &value, bool persistent)
{
    if (exists(name))
        tell(QT_TR_NOOP("There is a \"%1\" already. Change it, or take another name."), name);
    else if (zepletInterface()->addVarData(name, value, persistent))
        tell(QT_TR_NOOP("\"%1\" is added."), name);
    else if (exists(name)) // only what the controller took stays
        tell(QT_TR_NOOP("\"%1\" is added, but var.json is not on the controller: see the log."),
             name);
    else
        tell(QT_TR_NOOP("The controller does not take a \"%1\" of this type."), name);
}

void VariablesPlugin::change(const QString &name, const QVariant &value)
{
    if (!exists(name))
        tell(QT_TR_NOOP("There is no \"%1\". Add it first."), name);
    else if (zepletInterface()->updateVarData(name, value))
        tell(QT_TR_NOOP("\"%1\" is changed."), name);
    else if (storedValue(name) == value)
        tell(QT_TR_NOOP("\"%1\" is changed, but var.json is not on the controller: see the log."),
             name);
    else
        tell(QT_TR_NOOP(
                 "\"%1\" keeps its value: it is a connection, or the controller does not take this "
                 "value."),
             name);
}

void VariablesPlugin::remove(const QString &name)
{
    if (!exists(name))
        tell(QT_TR_NOOP("There is no \"%1\"."), name);
    else if (zepletInterface()->delVarData(name))
        tell(QT_TR_NOOP("\"%1\" is deleted."), name);
    else if (!exists(name))
        tell(QT_TR_NOOP("\"%1\" is deleted, but var.json on the controller is old: see the log."),
             name);
    else
        tell(QT_TR_NOOP("\"%1\" stays: it is a connection, or the program needs it."), name);
}

// One request, one file, one transfer for all of them.
void VariablesPlugin::removeSelected()
{
    const QStringList names = selectedNames();
    const bool deleted = zepletInterface()->delVarData(names);
    QStringList left;
    for (const QString &name : names) {
        if (exists(name))
            left.append(name);
    }
    if (!left.isEmpty())
        return tell(QT_TR_NOOP("These stay: %1."), left.join(", "));
    tell(deleted
             ? QT_TR_NOOP("%1 are deleted.")
             : QT_TR_NOOP("%1 are deleted, but var.json on the controller is old: see the log."),
         names.join(", "));
}

QStringList VariablesPlugin::selectedNames() const
{
    QStringList names;
    for (const QListWidgetItem *item : m_list->selectedItems())
        names.append(item->data(Qt::UserRole).toString());
    return names;
}

void VariablesPlugin::tell(const char *sentence, const QString &name)
{
    say([=] { return tr(sentence).arg(name); });
    refresh(); // the list itself does not tell of changed values
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new VariablesPlugin(parent); });
    return true;
}();

#include "variablesplugin.moc"
