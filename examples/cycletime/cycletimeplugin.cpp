// Times the program's cycles. Shows the hooks afterInit(), render() and idle(), the host's style
// sheet, the right side bar, a modal question that the panel knows of, and messages in the
// operator's log banner.
#include <zeplet/zeplet.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <functional>

#include <algorithm>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("cycletime");
using Sentence = std::function<QString()>; // to be said again in another language
} // namespace

class CycleTimePlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit CycleTimePlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(QT_TRANSLATE_NOOP("navigation", "Cycle time"));
        setDefaultGlobalSheet(true); // the page is styled before each frame
    }

    void init() override;
    void afterInit() override;
    void render() override;
    void idle() override;
    void detach() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void translate();
    void say(const Sentence &sentence);
    static QString seconds(qint64 milliseconds);
    void start();
    void stop();
    void askToClear();
    void setLarge(bool large);
    void clear();

    QPointer<QWidget> m_page;
    QPointer<QMessageBox> m_question;
    QPointer<QLabel> m_statistics;
    QLabel *m_title = nullptr;
    QLabel *m_thisCycle = nullptr;
    QLabel *m_warnAbove = nullptr;
    QLabel *m_library = nullptr;
    QPushButton *m_large = nullptr;
    QPushButton *m_clear = nullptr;
    QLabel *m_time = nullptr;
    QLabel *m_notice = nullptr;
    Sentence m_sentence = [] { return tr("Start the program: each run is a cycle."); };
    QSpinBox *m_limit = nullptr;
    QElapsedTimer m_running; ///< invalid while no program runs
    QVector<qint64> m_cycles; ///< milliseconds
    bool m_changed = true; ///< the statistics are behind
};

void CycleTimePlugin::init()
{
    m_page = new QWidget;
    m_page->installEventFilter(this);
    auto *layout = new QGridLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    m_title = new QLabel;
    m_title->setProperty("role", "heading");
    m_time = new QLabel;
    m_time->setObjectName("cycleTime");
    m_limit = new QSpinBox;
    m_limit->setRange(1, 3600);
    m_limit->setValue(60);
    m_thisCycle = new QLabel;
    m_warnAbove = new QLabel;
    m_library = new QLabel;
    m_large = new QPushButton;
    m_large->setCheckable(true);
    m_clear = new QPushButton;
    m_notice = new QLabel;
    m_notice->setWordWrap(true);
    layout->addWidget(m_title, 0, 0, 1, 2);
    layout->addWidget(m_thisCycle, 1, 0);
    layout->addWidget(m_time, 1, 1);
    layout->addWidget(m_warnAbove, 2, 0);
    layout->addWidget(m_limit, 2, 1);
    layout->addWidget(m_large, 3, 0);
    layout->addWidget(m_clear, 3, 1);
    layout->addWidget(m_notice, 4, 0, 1, 2, Qt::AlignTop);
    layout->addWidget(m_library, 5, 0, 1, 2);
    layout->setRowStretch(4, 1);
    connect(m_large, &QPushButton::toggled, this, &CycleTimePlugin::setLarge);
    connect(m_clear, &QPushButton::clicked, this, &CycleTimePlugin::askToClear);
    translate();
    CreateCenterWidget(pluginName, m_page);
    zepletEvent()->subscribe(
        RCRunStart, [this](auto &) { start(); }, pluginName, m_page);
    zepletEvent()->subscribe(
        RCRunStop, [this](auto &) { stop(); }, pluginName, m_page);
}

// The page hears of another language.
bool CycleTimePlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translate();
    return PluginBase::eventFilter(watched, event);
}

void CycleTimePlugin::translate()
{
    // As the navigation says it.
    m_title->setText(QCoreApplication::translate("navigation", qUtf8Printable(getPluginLabel())));
    m_thisCycle->setText(tr("This cycle"));
    m_warnAbove->setText(tr("Warn above"));
    m_limit->setSuffix(tr(" s"));
    m_large->setText(tr("Large digits"));
    m_clear->setText(tr("Clear"));
    m_library->setText(tr("Library %1").arg(GetPluginVersion()));
    m_time->setText(seconds(m_cycles.isEmpty() ? 0 : m_cycles.last()));
    m_changed = true; // the statistics are said again, too
    if (m_statistics)
        m_statistics->setWindowTitle(m_title->text());
    say(m_sentence);
}

void CycleTimePlugin::say(const Sentence &sentence)
{
    m_sentence = sentence;
    m_notice->setText(m_sentence());
}

// By now the panel has its side bar, if it has one at all; else the statistics go below the times.
void CycleTimePlugin::afterInit()
{
    m_statistics = new QLabel;
    m_statistics->setObjectName("statistics");
    m_statistics->setWindowTitle(m_title->text());
    m_statistics->setMargin(16);
    m_statistics->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    QWidget *sideBar = nullptr;
    GetRightExpandSideBar(&sideBar);
    if (sideBar)
        CreateRightExpandWidgte(pluginName, m_statistics, QString());
    else
        m_page->layout()->addWidget(m_statistics);
}

// Once per frame: only what a person can see to change.
void CycleTimePlugin::render()
{
    if (m_page && m_page->isVisible() && m_running.isValid())
        m_time->setText(seconds(m_running.elapsed()));
}

// Sorting has time until the panel has nothing else to do.
void CycleTimePlugin::idle()
{
    if (!m_changed || !m_statistics)
        return;
    m_changed = false;
    QVector<qint64> sorted = m_cycles;
    std::sort(sorted.begin(), sorted.end());
    m_statistics->setText(
        sorted.isEmpty() ? tr("No cycles yet.")
                         : tr("Cycles: %1\nShortest: %2\nMedian: %3\nLongest: %4")
                               .arg(QString::number(sorted.size()), seconds(sorted.first()),
                                    seconds(sorted.at(sorted.size() / 2)), seconds(sorted.last())));
}

// The host takes back what it was given, but a question lies above all pages.
void CycleTimePlugin::detach()
{
    delete m_question;
    delete m_statistics;
    delete m_page;
}

QString CycleTimePlugin::seconds(qint64 milliseconds)
{
    return tr("%1 s").arg(double(milliseconds) / 1000, 0, 'f', 1);
}

void CycleTimePlugin::start()
{
    m_running.start();
    say([] { return tr("The program runs."); });
}

// A program that ran before this plugin was there has no known start.
void CycleTimePlugin::stop()
{
    if (!m_running.isValid())
        return;
    const qint64 cycle = m_running.elapsed();
    m_running.invalidate();
    m_cycles.append(cycle);
    m_changed = true;
    m_time->setText(seconds(cycle));
    say([=] { return tr("The last cycle took %1.").arg(seconds(cycle)); });
    if (cycle > m_limit->value() * 1000LL)
        ThrowLog(pluginName, ThrowLogWarning,
                 tr("The cycle took %1: see what holds it up.").arg(seconds(cycle)));
}

// Does not wait for the answer: the panel has to live on, above all its keys to stop the robot.
void CycleTimePlugin::askToClear()
{
    m_question = new QMessageBox(QMessageBox::Question, m_title->text(),
                                 tr("Forget all cycle times? There are %1.").arg(m_cycles.size()),
                                 QMessageBox::Yes | QMessageBox::No, m_page);
    m_question->setAttribute(Qt::WA_DeleteOnClose);
    ChangeModelWindowStatus(pluginName, true);
    connect(m_question, &QObject::destroyed, this,
            [] { ChangeModelWindowStatus(pluginName, false); });
    connect(m_question, &QDialog::accepted, this, &CycleTimePlugin::clear);
    m_question->open();
}

// To be read from afar: a style of one's own instead of the panel's.
void CycleTimePlugin::setLarge(bool large)
{
    setDefaultGlobalSheet(!large);
    m_time->setStyleSheet(getDefaultGlobalSheet() ? QString() : "font-size: 96px");
}

void CycleTimePlugin::clear()
{
    m_cycles.clear();
    m_changed = true;
    ThrowLog(pluginName, ThrowLogInfo, tr("The cycle times begin anew."));
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new CycleTimePlugin(parent); });
    return true;
}();

#include "cycletimeplugin.moc"
