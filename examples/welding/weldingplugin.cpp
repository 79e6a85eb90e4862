// Instructions for arc welding in the program editor, with parameters and robot targets. Shows
// RLManager, in the long form and with createData(), and RLContentBase (WeldForm); WeldInstruction
// has the texts and patterns.
#include "weldform.h"

#include <zeplet/rl/rlmanager.h>
#include <zeplet/zeplet.h>

#include <QEvent>
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("welding");
const QString seamGroup = QStringLiteral("welding"), setupGroup = QStringLiteral("welding.setup");

// A word without parameters: createData() needs no more than this.
const WeldInstruction &gasTest()
{
    static const WeldInstruction instruction {
        "GasTest", QT_TRANSLATE_NOOP("Welding", "Lets the gas flow for a moment."), false, {}};
    return instruction;
}

// The makers outlive the plugin: they refer to the tables alone.
void registerInstruction(const WeldInstruction &instruction)
{
    const auto makeForm = [&instruction] { return new WeldForm(instruction); };
    RLManager editor;
    editor.createTypeKey(instruction.type);
    editor.createPattern(instruction.type, instruction.pattern());
    editor.createSkeleton(instruction.type, instruction.skeleton());
    editor.createInsDefault(instruction.type, instruction.standardText());
    editor.createInsertWidget(instruction.type, makeForm);
    editor.createPropertyWidget(instruction.type, makeForm);
}

// Once in the process: the editor keeps what is entered, and would list a second time what comes
// again.
void registerGroups()
{
    RLManager editor;
    QStringList types;
    for (const WeldInstruction &instruction : weldInstructions()) {
        registerInstruction(instruction);
        types.append(instruction.type);
    }
    const auto makeForm = [] { return new WeldForm(gasTest()); };
    editor.createGroups(seamGroup, weldText(QT_TRANSLATE_NOOP("Welding", "Welding")));
    editor.createGroups(setupGroup, weldText(QT_TRANSLATE_NOOP("Welding", "Welding setup")));
    editor.createTypeToGroup(seamGroup, types);
    editor.createData(setupGroup, gasTest().type, weldText(gasTest().description), makeForm,
                      makeForm);
    editor.createTypeToGroup(seamGroup, QString(gasTest().type)); // offered in both
}
} // namespace

/** Says what the plugin brings, since its instructions are found elsewhere. */
class WeldingPage : public QWidget
{
    Q_OBJECT

public:
    WeldingPage()
        : m_text(new QLabel)
    {
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(24, 24, 24, 24);
        m_text->setTextFormat(Qt::RichText);
        m_text->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        m_text->setWordWrap(true);
        layout->addWidget(m_text);
        translate();
    }

protected:
    void changeEvent(QEvent *event) override
    {
        QWidget::changeEvent(event);
        if (event->type() == QEvent::LanguageChange)
            translate();
    }

private:
    void translate();

    QLabel *m_text;
};

// A later description replaces the earlier one, so the editor's follow the language, too.
void WeldingPage::translate()
{
    QString text
        = QStringLiteral("<h2>%1</h2><p>%2</p>")
              .arg(weldText("Welding"), tr("The program editor offers these instructions:"));
    QVector<WeldInstruction> all = weldInstructions();
    all.append(gasTest());
    for (const WeldInstruction &instruction : qAsConst(all)) {
        RLManager().createInsDescribe(instruction.type, weldText(instruction.description));
        text += QStringLiteral("<p><b>%1</b><br>%2</p>")
                    .arg(instruction.skeleton().toHtmlEscaped(),
                         weldText(instruction.description).toHtmlEscaped());
    }
    m_text->setText(text);
}

class WeldingPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit WeldingPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(QT_TRANSLATE_NOOP("navigation", "Welding"));
    }

    void init() override
    {
        static const bool entered = (registerGroups(), true);
        Q_UNUSED(entered)
        CreateCenterWidget(pluginName, m_page = new WeldingPage);
    }
    void detach() override { delete m_page; }

private:
    QPointer<WeldingPage> m_page;
};

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new WeldingPlugin(parent); });
    return true;
}();

#include "weldingplugin.moc"
