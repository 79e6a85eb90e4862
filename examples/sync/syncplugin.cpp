// A note for the open project, kept on the controller: one file, and the directory around it. Shows
// SyncTool and the plugin's own data directory.
#include <zeplet/zeplet.h>

#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSaveFile>

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

private:
    bool tell(bool done, const QString &success);
    bool save();
    void read();

    QPointer<QWidget> m_page;
    QPlainTextEdit *m_note = nullptr;
    QLabel *m_notice = nullptr;
};

void SyncPlugin::init()
{
    m_page = new QWidget;
    auto *layout = new QGridLayout(m_page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    m_note = new QPlainTextEdit;
    m_note->setPlaceholderText(tr("A note for whoever works on this project next"));
    m_notice = new QLabel(tr("Send everything once, then the note alone."));
    m_notice->setWordWrap(true);
    layout->addWidget(m_note, 1, 0, 1, 3);
    layout->addWidget(m_notice, 2, 0, 1, 3);
    const auto addButton = [=](int column, const QString &text, const auto &action) {
        auto *button = new QPushButton(text);
        layout->addWidget(button, 0, column);
        connect(button, &QPushButton::clicked, this, action);
    };
    addButton(0, tr("Send all"), [this] {
        if (save())
            tell(SyncTool::instance()->pushFile(localDirectory(), remoteDirectory(), true),
                 tr("The controller has all notes of this panel, and no others."));
    });
    addButton(1, tr("Send note"), [this] {
        const QString remoteFile = remoteDirectory() + QLatin1Char('/') + fileName;
        if (save())
            tell(SyncTool::instance()->pushOneFile(localDirectory() + fileName, remoteFile, true),
                 tr("The controller has this note."));
    });
    addButton(2, tr("Fetch all"), [this] {
        if (tell(SyncTool::instance()->pullFile(remoteDirectory(), localDirectory(), true, true),
                 tr("This panel has all notes of the controller, and no others.")))
            read();
    });
    read();
    CreateCenterWidget(pluginName, m_page);
}

bool SyncPlugin::tell(bool done, const QString &success)
{
    m_notice->setText(done ? success
                           : tr("Not everything was copied. Is the controller on, and does it have "
                                "this project? The log says what rsync found."));
    return done;
}

bool SyncPlugin::save()
{
    QSaveFile file(localDirectory() + fileName);
    if (QDir().mkpath(localDirectory()) && file.open(QIODevice::WriteOnly)
        && file.write(m_note->toPlainText().toUtf8()) >= 0 && file.commit())
        return true;
    m_notice->setText(tr("The note can't be saved on the panel: %1").arg(file.errorString()));
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
