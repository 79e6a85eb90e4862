// Counts the program's starts and shows the count in the status bar, whatever page is open.
#include <zeplet/zeplet.h>

#include <QEvent>
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("sample");
}

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
    void createPage();
    void showStarts();

    QPointer<QWidget> m_page;
    QLabel *m_text = nullptr;
    QPointer<QLabel> m_status;
    int m_starts = 0;
};

void SamplePlugin::init()
{
    createPage();
    m_status = new QLabel;
    m_status->setObjectName("sample_starts");
    CreateStatusBar(pluginName, m_status, 0);
    translate();

    // With the plugin as its context, the subscription ends when the plugin goes.
    const auto count = [this](const ZepletEvent &) {
        ++m_starts;
        showStarts();
    };
    zepletEvent()->subscribe(RCRunStart, count, pluginName, this);
}

// The page hears of another language.
bool SamplePlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translate();
    return PluginBase::eventFilter(watched, event);
}

// All texts, each time the operator chooses a language.
void SamplePlugin::translate()
{
    m_text->setText(tr("The status bar counts how often the program was started since the panel "
                       "began to run."));
    showStarts();
}

// The last call: leave nothing behind.
void SamplePlugin::detach()
{
    delete m_status;
    delete m_page;
}

void SamplePlugin::createPage()
{
    m_page = new QWidget;
    m_page->installEventFilter(this);
    m_text = new QLabel;
    m_text->setWordWrap(true);
    auto *layout = new QVBoxLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->addWidget(m_text);
    layout->addStretch();
    CreateCenterWidget(pluginName, m_page);
}

// The host owns the status bar's entry: it may be gone.
void SamplePlugin::showStarts()
{
    if (m_status)
        m_status->setText(tr("Starts: %1").arg(m_starts));
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new SamplePlugin(parent); });
    return true;
}();

#include "sampleplugin.moc"
