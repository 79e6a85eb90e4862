// A note for the open project, kept on the controller: one file, and the directory around it.
#include <zeplet/zeplet.h>

#include <QDir>
#include <QHBoxLayout>
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
} // namespace

class SyncPage : public QWidget
{
    Q_OBJECT

public:
    SyncPage();

private:
    void addButton(QLayout *line, const QString &text, const std::function<void()> &action);
    bool save();
    void read();

    QPlainTextEdit *m_note = new QPlainTextEdit;
    QLabel *m_notice = new QLabel;
};

SyncPage::SyncPage()
{
    auto *title = new QLabel(tr("My note"));
    title->setProperty("role", "heading");
    m_note->setPlaceholderText(tr("A note for whoever works on this project next"));
    m_notice->setText(tr("Send everything once, then the note alone."));
    m_notice->setWordWrap(true);
    auto *line = new QHBoxLayout;
    line->addWidget(title, 1);
    const auto tell = [this](bool done, const QString &success) {
        m_notice->setText(done ? success
                               : tr("Nothing was copied. Is the controller on, and does it have "
                                    "this project? The log says what rsync found."));
    };
    addButton(line, tr("Send all"), [=] {
        if (save())
            tell(SyncTool::instance()->pushFile(localDirectory(), remoteDirectory(), true),
                 tr("The controller has all notes of this panel, and no others."));
    });
    addButton(line, tr("Send note"), [=] {
        const QString remoteFile = remoteDirectory() + QLatin1Char('/') + fileName;
        if (save())
            tell(SyncTool::instance()->pushOneFile(localDirectory() + fileName, remoteFile, true),
                 tr("The controller has this note."));
    });
    addButton(line, tr("Fetch all"), [=] {
        tell(SyncTool::instance()->pullFile(remoteDirectory(), localDirectory(), true, true),
             tr("This panel has all notes of the controller, and no others."));
        read();
    });
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    layout->addLayout(line);
    layout->addWidget(m_note, 1);
    layout->addWidget(m_notice);
    read();
}

void SyncPage::addButton(QLayout *line, const QString &text, const std::function<void()> &action)
{
    auto *button = new QPushButton(text);
    line->addWidget(button);
    connect(button, &QPushButton::clicked, this, action);
}

bool SyncPage::save()
{
    QSaveFile file(localDirectory() + fileName);
    if (QDir().mkpath(localDirectory()) && file.open(QIODevice::WriteOnly)
        && file.write(m_note->toPlainText().toUtf8()) >= 0 && file.commit())
        return true;
    m_notice->setText(tr("The note can't be saved on the panel: %1").arg(file.errorString()));
    return false;
}

void SyncPage::read()
{
    QFile file(localDirectory() + fileName);
    if (file.open(QIODevice::ReadOnly))
        m_note->setPlainText(QString::fromUtf8(file.readAll()));
}

class SyncPlugin : public PluginBase
{
    Q_OBJECT

public:
    explicit SyncPlugin(QObject *parent)
        : PluginBase(parent)
    {
        setPluginLabel(tr("My note"));
    }

    void init() override { CreateCenterWidget(pluginName, m_page = new SyncPage); }
    void detach() override { delete m_page; }

private:
    QPointer<SyncPage> m_page;
};

// Runs when the panel loads the library: from here on it knows the plugin by name.
static const bool registered = [] {
    zepletFactory().regist(pluginName, [](QObject *parent) { return new SyncPlugin(parent); });
    return true;
}();

#include "syncplugin.moc"
