// The operator's logbook. Shows the three log streams, how log files are named and found, and how a
// file that a plugin writes itself takes part in the limits of PluginLogFileManager.
#include <zeplet/log/pluginlogfilemanager.h>
#include <zeplet/log/pluginlogfiles.h>
#include <zeplet/zeplet.h>

#include <QDateTime>
#include <QEvent>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <functional>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("logging");
const QString notes = QStringLiteral("./log/zeplet/logbook"); // the panel's log directory
const QString states = QStringLiteral("./log/zeplet/robotstate");
const QString extension = QStringLiteral("log");
const QString cyan = QStringLiteral("\033[36m"), red = QStringLiteral("\033[31m");
constexpr qint64 keptBytes = 50 << 20;

QString prefix(QChar level)
{
    return QStringLiteral("[%1|%2]").arg(
        level, QDateTime::currentDateTime().toString("MM/dd hh:mm:ss.zzz"));
}

// A line that is written by hand, in one piece like those of the streams.
bool append(const QString &path, const QByteArray &line)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append) || file.write(line) != line.size())
        return false;
    file.close();
    PluginLogFileManager::instance()->updateFileSize(path, file.size());
    return true;
}

using Sentence = std::function<QString()>; // to be said again in another language
} // namespace

class LoggingPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit LoggingPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(QT_TRANSLATE_NOOP("navigation", "Logbook"));
    }

    void init() override;
    void detach() override { delete m_page; }
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void translate();
    void say(const Sentence &sentence);
    void createButtons(QGridLayout *layout);
    void write(const QString &text, bool isProblem);
    void recordState();
    void refresh();
    void show(const QListWidgetItem *item);
    void removeSelected();
    void tidyUp();

    QPointer<QWidget> m_page;
    QLineEdit *m_note = nullptr;
    QListWidget *m_files = nullptr;
    QPlainTextEdit *m_text = nullptr;
    QLabel *m_notice = nullptr;
    Sentence m_sentence = [] { return tr("Type a note, then tap Note or Problem."); };
};

void LoggingPlugin::init()
{
    PluginLogFileManager::instance()->initializeLogRoot(notes);
    m_page = new QWidget;
    m_page->installEventFilter(this);
    auto *layout = new QGridLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    m_note = new QLineEdit;
    m_files = new QListWidget;
    m_text = new QPlainTextEdit;
    m_text->setReadOnly(true);
    m_notice = new QLabel;
    m_notice->setWordWrap(true);
    layout->addWidget(m_note, 0, 0, 1, 5);
    createButtons(layout);
    layout->addWidget(m_files, 2, 0, 1, 2);
    layout->addWidget(m_text, 2, 2, 1, 3);
    layout->addWidget(m_notice, 3, 0, 1, 5);
    connect(m_files, &QListWidget::currentItemChanged, this, &LoggingPlugin::show);
    refresh();
    translate();
    CreateCenterWidget(pluginName, m_page);
    zepletEvent()->subscribe(
        RCPowerStatusChange, [this](auto &) { recordState(); }, pluginName, m_page);
}

// The page hears of another language.
bool LoggingPlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translate();
    return PluginBase::eventFilter(watched, event);
}

void LoggingPlugin::translate()
{
    for (QPushButton *button : m_page->findChildren<QPushButton *>())
        button->setText(tr(qUtf8Printable(button->objectName()))); // its name is in English
    m_note->setPlaceholderText(tr("What happened at the cell"));
    say(m_sentence);
}

void LoggingPlugin::say(const Sentence &sentence)
{
    m_sentence = sentence;
    m_notice->setText(m_sentence());
}

void LoggingPlugin::createButtons(QGridLayout *layout)
{
    const auto addButton = [=](int column, const char *text, const auto &action) {
        auto *button = new QPushButton;
        button->setObjectName(text);
        layout->addWidget(button, 1, column);
        connect(button, &QPushButton::clicked, this, action);
    };
    addButton(0, QT_TR_NOOP("Note"), [this] { write(m_note->text().trimmed(), false); });
    addButton(1, QT_TR_NOOP("Problem"), [this] { write(m_note->text().trimmed(), true); });
    addButton(2, QT_TR_NOOP("Record state"), [this] { recordState(); });
    addButton(3, QT_TR_NOOP("Remove file"), [this] { removeSelected(); });
    addButton(4, QT_TR_NOOP("Tidy up"), [this] { tidyUp(); });
}

// A problem also goes to the console, where whoever looks for it sees it in red.
void LoggingPlugin::write(const QString &text, bool isProblem)
{
    if (text.isEmpty())
        return say([] { return tr("Type a note first."); });
    const QString robot = zepletInterface()->getRobotID();
    if (isProblem)
        QFLog(red, prefix('E'), QStringLiteral(" "), notes, extension).space()
            << robot << "problem:" << text;
    else
        FLog(prefix('I'), QStringLiteral(" "), notes, extension).space()
            << robot << "note:" << text;
    QLog(cyan, prefix('d'), QStringLiteral(" ")).space()
        << "logbook:" << text.size() << "characters";
    m_note->clear();
    const QString file = PluginLogFileManager::instance()->getProperLogFileName(notes, extension);
    say([=] { return tr("Written to %1.").arg(file); });
    refresh();
}

// A disk that is full gets room once: the oldest logs go before the newest is given up.
void LoggingPlugin::recordState()
{
    PluginLogFileManager *const manager = PluginLogFileManager::instance();
    const QByteArray line
        = QStringLiteral("%1 motors %2, program %3\n")
              .arg(prefix('I'), zepletInterface()->getRobotEleStatus() ? "on" : "off",
                   zepletInterface()->getRobotPhyStatus())
              .toUtf8();
    bool written = append(manager->getProperLogFileName(states, extension), line);
    if (!written) {
        manager->recoverFromWriteFailure(states);
        written = append(manager->getProperLogFileName(states, extension), line);
    }
    say([=] {
        return written ? tr("The robot's state is recorded.")
                       : tr("The state can't be written: is the panel's disk full?");
    });
    refresh();
}

// The newest day first.
void LoggingPlugin::refresh()
{
    const QString shown = m_files->currentItem() ? m_files->currentItem()->text() : QString();
    m_files->clear();
    const QDir root = pluginLogRootDir(notes);
    for (const QFileInfo &file : root.entryInfoList({"*." + extension}, QDir::Files, QDir::Time)) {
        QString name, date;
        int index = 0;
        if (!extractLogFileMeta(file.completeBaseName(), name, date, index))
            continue; // somebody else's
        const QString text
            = PluginLogFileManager::instance()->buildFileName(name, date, index, extension);
        auto *item = new QListWidgetItem(text, m_files);
        item->setSizeHint({0, 53}); // a finger's width
        if (text == shown)
            m_files->setCurrentItem(item);
    }
}

void LoggingPlugin::show(const QListWidgetItem *item)
{
    QFile file(item ? pluginLogRootDir(notes).filePath(item->text()) : QString());
    m_text->setPlainText(item && file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                                                : QString());
    m_text->moveCursor(QTextCursor::End);
}

// The manager does not see who else deletes: it is told to count anew.
void LoggingPlugin::removeSelected()
{
    const QDir root = pluginLogRootDir(notes);
    if (!m_files->currentItem())
        return say([] { return tr("Select a file first."); });
    const bool removed = QFile::remove(root.filePath(m_files->currentItem()->text()));
    PluginLogFileManager::instance()->rescanTotalLogSize(root.path());
    refresh();
    say([=] { return removed ? tr("The file is removed.") : tr("The file can't be removed."); });
}

void LoggingPlugin::tidyUp()
{
    PluginLogFileManager::instance()->cleanupOldFiles(notes, keptBytes, false);
    refresh();
    say([] { return tr("The oldest files are gone as far as all are above 50 MiB."); });
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new LoggingPlugin(parent); });
    return true;
}();

#include "loggingplugin.moc"
