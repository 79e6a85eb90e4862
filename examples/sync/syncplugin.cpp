// A note for the open project, kept on the controller: one file, and the directory around it. Shows
// SyncTool and the plugin's own data directory.
#include <zeplet/zeplet.h>

#include <QDir>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSaveFile>
#include <functional>

using namespace zeplet;

namespace
{
const QString pluginName = QStringLiteral("sync");
const QString fileName = QStringLiteral("note.txt");

// Projects lie in the controller's module "hmi"; "_temp" is there where none is open.
QString remoteDirectory()
{
    const QString project = zepletInterface()->getCurProject().section(QLatin1Char('/'), -1);
    return QStringLiteral("hmi/%1/notes")
        .arg(project.isEmpty() ? QStringLiteral("_temp") : project);
}

QString localDirectory()
{
    QString path;
    GetPluginDataPath(path, pluginName);
    return QDir(path).absoluteFilePath(QStringLiteral("notes/")); // the slash: what is in it
}

using Sentence = std::function<QString()>; // to be said again in another language
} // namespace

class SyncPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit SyncPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(QT_TRANSLATE_NOOP("navigation", "My note"));
    }

    void init() override;
    void detach() override { delete m_page; }
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void translate();
    void say(const Sentence &sentence);
    bool tell(bool done, const char *success);
    bool save();
    void read();

    QPointer<QWidget> m_page;
    QPlainTextEdit *m_note = nullptr;
    QLabel *m_notice = nullptr;
    Sentence m_sentence = [] { return tr("Send everything once, then the note alone."); };
};

void SyncPlugin::init()
{
    m_page = new QWidget;
    m_page->installEventFilter(this);
    auto *layout = new QGridLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    m_note = new QPlainTextEdit;
    m_notice = new QLabel;
    m_notice->setWordWrap(true);
    layout->addWidget(m_note, 1, 0, 1, 3);
    layout->addWidget(m_notice, 2, 0, 1, 3);
    const auto addButton = [=](int column, const char *text, const auto &action) {
        auto *button = new QPushButton;
        button->setObjectName(text);
        layout->addWidget(button, 0, column);
        connect(button, &QPushButton::clicked, this, action);
    };
    addButton(0, QT_TR_NOOP("Send all"), [this] {
        if (save())
            tell(SyncTool::instance()->pushFile(localDirectory(), remoteDirectory(), true),
                 QT_TR_NOOP("The controller has all notes of this panel, and no others."));
    });
    addButton(1, QT_TR_NOOP("Send note"), [this] {
        const QString remoteFile = remoteDirectory() + QLatin1Char('/') + fileName;
        if (save())
            tell(SyncTool::instance()->pushOneFile(localDirectory() + fileName, remoteFile, true),
                 QT_TR_NOOP("The controller has this note."));
    });
    addButton(2, QT_TR_NOOP("Fetch all"), [this] {
        if (tell(SyncTool::instance()->pullFile(remoteDirectory(), localDirectory(), true, true),
                 QT_TR_NOOP("This panel has all notes of the controller, and no others.")))
            read();
    });
    read();
    translate();
    CreateCenterWidget(pluginName, m_page);
}

// The page hears of another language.
bool SyncPlugin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        translate();
    return PluginBase::eventFilter(watched, event);
}

void SyncPlugin::translate()
{
    for (QPushButton *button : m_page->findChildren<QPushButton *>())
        button->setText(tr(qUtf8Printable(button->objectName()))); // its name is in English
    m_note->setPlaceholderText(tr("A note for whoever works on this project next"));
    say(m_sentence);
}

void SyncPlugin::say(const Sentence &sentence)
{
    m_sentence = sentence;
    m_notice->setText(m_sentence());
}

bool SyncPlugin::tell(bool done, const char *success)
{
    say([=] {
        return done ? tr(success)
                    : tr("Not everything was copied. Is the controller on, and does it have "
                         "this project? The log says what rsync found.");
    });
    return done;
}

bool SyncPlugin::save()
{
    QSaveFile file(localDirectory() + fileName);
    if (QDir().mkpath(localDirectory()) && file.open(QIODevice::WriteOnly)
        && file.write(m_note->toPlainText().toUtf8()) >= 0 && file.commit())
        return true;
    say([problem = file.errorString()] {
        return tr("The note can't be saved on the panel: %1").arg(problem);
    });
    return false;
}

void SyncPlugin::read()
{
    QFile file(localDirectory() + fileName);
    if (file.open(QIODevice::ReadOnly))
        m_note->setPlainText(QString::fromUtf8(file.readAll()));
}

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new SyncPlugin(parent); });
    return true;
}();

#include "syncplugin.moc"
