// Adds an instruction with a number to the program editor: "Sample 3". The page shows the widget
// that the editor uses, and the line that it makes.
#include <zeplet/zeplet.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QRegularExpression>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("sample");
const QString instruction = QStringLiteral("Sample");

/** The program's lines that are this instruction: the word, a number, perhaps a comment. */
const QString pattern = QStringLiteral(R"(^\s*%1\s+(\d+)\s*(?://.*)?$)").arg(instruction);
} // namespace

/** What the operator enters; the editor takes the instruction's text from it. */
class SampleContent : public RLContentBase
{
    Q_OBJECT

public:
    explicit SampleContent(QWidget *parent = nullptr)
        : RLContentBase(parent)
        , m_label(new QLabel)
        , m_times(new QSpinBox)
    {
        m_times->setObjectName("times");
        m_times->setRange(1, 100);
        auto *layout = new QHBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0); // whoever shows it has margins
        layout->addWidget(m_label);
        layout->addWidget(m_times);
        layout->addStretch();
        connect(m_times, qOverload<int>(&QSpinBox::valueChanged), this, &SampleContent::changed);
        translate();
    }

    /** A line of the program is to be edited. */
    void FillWith(const QString &text) override
    {
        const auto match = QRegularExpression(pattern).match(text);
        if (match.hasMatch())
            m_times->setValue(match.captured(1).toInt());
    }

    QString ToString() override { return instruction + ' ' + QString::number(m_times->value()); }

    /** Whether what is entered may go into the program: here it always may. */
    bool CheckInsert() override { return true; }
    bool CheckReplace() override { return true; }

Q_SIGNALS:
    void changed();

protected:
    void changeEvent(QEvent *event) override
    {
        RLContentBase::changeEvent(event);
        if (event->type() == QEvent::LanguageChange)
            translate();
    }

private:
    void translate() { m_label->setText(tr("Times")); }

    QLabel *m_label;
    QSpinBox *m_times;
};

class SamplePlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit SamplePlugin(QObject *parent)
        : PluginBase(parent)
    {
        // The navigation's title, which translations may replace.
        setPluginLabel(QStringLiteral(QT_TRANSLATE_NOOP("navigation", "Sample label")));
    }

    void init() override;
    void detach() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void translate();
    void addInstruction();
    void createPage();

    QPointer<QWidget> m_page;
    QLabel *m_text = nullptr;
};

void SamplePlugin::init()
{
    addInstruction();
    createPage();
    translate();
}

// The page hears of another language.
bool SamplePlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translate();
    return PluginBase::eventFilter(watched, event);
}

// All texts, each time the operator chooses a language; the editor takes the last description.
void SamplePlugin::translate()
{
    RLManager().createInsDescribe(instruction, tr("Does something several times."));
    m_text->setText(tr("The page Program can insert the instruction %1. To try it here, change the "
                       "number: the line below is what goes into the program.")
                        .arg(instruction));
}

// The last call: leave nothing behind. Instructions stay as long as the panel runs.
void SamplePlugin::detach()
{
    delete m_page;
}

void SamplePlugin::addInstruction()
{
    const auto content = [] { return new SampleContent; };
    RLManager editor;
    editor.createGroups(pluginName, getPluginLabel());
    editor.createData(pluginName, instruction, QString(), content, content); // described below
    // createData() expects the word alone: this instruction has a number behind it.
    editor.createPattern(instruction, pattern);
    editor.createSkeleton(instruction, instruction + QStringLiteral(" <times>"));
    editor.createInsDefault(instruction, instruction + QStringLiteral(" 1"));
}

void SamplePlugin::createPage()
{
    m_page = new QWidget;
    m_page->installEventFilter(this);
    auto *content = new SampleContent;
    auto *line = new QLabel(content->ToString());
    line->setObjectName("line");
    connect(content, &SampleContent::changed, line, [=] { line->setText(content->ToString()); });

    auto *layout = new QVBoxLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    m_text = new QLabel;
    m_text->setWordWrap(true);
    layout->addWidget(m_text);
    layout->addWidget(content);
    layout->addWidget(line);
    layout->addStretch();
    CreateCenterWidget(pluginName, m_page);
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new SamplePlugin(parent); });
    return true;
}();

#include "sampleplugin.moc"
