#include "pluginloader.h"

#include "faultnotice.h"
#include "loadtrial.h"
#include "panellog.h"
#include "plugincheck.h"
#include "startguard.h"

#include <QDir>
#include <QJsonArray>
#include <QLibrary>
#include <algorithm>
#include <brisa/languagemanager.h>
#include <brisa/managerhelper.h>
#include <kest/bmodule.h>
#include <kest/centerwidget.h>
#include <kest/modulefactory.h>
#include <locale.h>
#include <ostrel/moduleobject.h>

namespace panel
{

namespace
{

/** The linker's messages in English, on this thread alone: linkerSentence() reads them. */
class EnglishMessages
{
public:
    EnglishMessages()
        : m_own(newlocale(LC_MESSAGES_MASK, "C", duplocale(LC_GLOBAL_LOCALE)))
        , m_before(uselocale(m_own))
    {
    }
    ~EnglishMessages()
    {
        uselocale(m_before);
        freelocale(m_own);
    }
    EnglishMessages(const EnglishMessages &) = delete;
    EnglishMessages &operator=(const EnglishMessages &) = delete;

private:
    locale_t m_own;
    locale_t m_before;
};

void tellOperator(const QString &sentence)
{
    errorLine() << sentence;
    brisa::ManagerHelper::throwLog(nullptr, QStringLiteral("warning"), sentence);
}

/** The cause, with a remedy behind it. */
QString withRemedy(QString cause)
{
    while (cause.endsWith('.'))
        cause.chop(1);
    return PluginLoader::tr("%1; correct the plugin and start the panel again.").arg(cause);
}

/** Opens the library for the life of the process; the linker's message where it can't. */
QString openLibrary(const QString &path)
{
    QLibrary library(path);
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    const EnglishMessages english;
    return library.load() ? QString() : library.errorString();
}

void refuse(PluginRecord *record, const QString &sentence)
{
    record->state = PluginRecord::Refused;
    record->sentence = sentence;
    record->modules.clear();
}

} // namespace

PluginLoader::PluginLoader(StartGuard &guard, LoadTrial &trial, QObject *parent)
    : QObject(parent)
    , m_guard(guard)
    , m_trial(trial)
{
    connect(m(QStringLiteral("panel.retry")), &ostrel::ModuleObject::changed, this,
            [this](const QVariant &name) { tryAgain(name.toString()); });
}

void PluginLoader::loadDirectory(const QString &path)
{
    const QDir directory(path);
    if (!directory.isReadable())
        tellOperator(
            tr("The plugin directory %1 can't be read: create it, correct its permissions, "
               "or start the panel with another one.")
                .arg(path));
    if (m_directories.contains(directory.canonicalPath()))
        return;
    m_directories.insert(directory.canonicalPath());
    const QFileInfoList files = directory.entryInfoList(
        {QStringLiteral("*.so")},
        QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::System | QDir::Hidden, QDir::Name);
    newModules(); // they are not of these libraries
    const int first = m_records.size();
    for (const QFileInfo &file : files)
        m_records.append(checkPlugin(file));
    for (int i = first; i < m_records.size(); ++i) {
        load(i);
        if (!m_records.at(i).sentence.isEmpty())
            tellOperator(m_records.at(i).sentence);
    }
    mirror();
}

/** Judges by what is known before the library is opened. */
bool PluginLoader::isWelcome(PluginRecord *record) const
{
    const QString name = record->tag.name;
    if (record->state != PluginRecord::Running)
        return false;
    if (m_guard.isLeftOut(name, record->file)) {
        record->state = PluginRecord::LeftOut;
        record->sentence = tr("%1 was left out because it took the panel down (%2): replace it "
                              "with a corrected one, or try it again.")
                               .arg(record->file.fileName(), m_guard.fatalStep(name));
        return false;
    }
    if (!bfactory().makers.contains(name))
        return true;
    refuse(record, takenSentence(*record));
    return false;
}

QString PluginLoader::takenSentence(const PluginRecord &record) const
{
    const QString name = record.tag.name;
    const auto first
        = std::find_if(m_records.begin(), m_records.end(),
                       [&name](const PluginRecord &other) { return other.modules.contains(name); });
    if (first == m_records.end()) // the host's own, or of a library that was refused
        return tr("%1 registers the name \"%2\", which is taken: remove it, or give it a name of "
                  "its own.")
            .arg(record.file.fileName(), name);
    const bool together = first->file.absolutePath() == record.file.absolutePath();
    const auto nameOf = [together](const QFileInfo &file) {
        return together ? file.fileName() : file.absoluteFilePath();
    };
    return tr("%1 registers the name \"%2\", which %3 has already: remove one of the two, or give "
              "one a name of its own.")
        .arg(nameOf(record.file), name, nameOf(first->file));
}

void PluginLoader::load(int index)
{
    if (!isWelcome(&m_records[index]))
        return;
    const QFileInfo file = m_records.at(index).file;
    if (!m_trial.isKnown(file) && !m_tried.contains(file.absoluteFilePath()))
        tryOut(index);
    if (m_records.at(index).state == PluginRecord::Running)
        open(&m_records[index]);
}

/** Together with the unknown libraries behind it. What fails is not opened; those behind it get a
 *  child of their own when it is their turn, which then starts with what is open by then. */
void PluginLoader::tryOut(int first)
{
    QList<int> indexes;
    QFileInfoList files;
    for (int i = first; i < m_records.size(); ++i) {
        if (!isWelcome(&m_records[i]))
            continue;
        if (m_trial.isKnown(m_records.at(i).file))
            break;
        indexes += i;
        files += m_records.at(i).file;
    }
    const LoadTrial::Outcome outcome = m_trial.run(files);
    for (int i = 0; i < outcome.sound; ++i)
        m_tried.insert(files.at(i).absoluteFilePath());
    if (outcome.sentence.isEmpty())
        return;
    PluginRecord &failed = m_records[indexes.at(outcome.sound)];
    failed.state = PluginRecord::LeftOut;
    failed.sentence = outcome.sentence;
}

void PluginLoader::open(PluginRecord *record)
{
    const QString path = record->file.absoluteFilePath();
    m_guard.enterLoading(record->tag.name, path);
    const QString error = openLibrary(path);
    m_guard.leave();
    brisa::LanguageManager::instance()->loadLibraries(); // what it says from now on is translated
    if (error.isEmpty())
        takeModules(record, newModules());
    else
        refuse(record, linkerSentence(record->file.fileName(), error));
}

/** added: what the library registered while it was opened. */
void PluginLoader::takeModules(PluginRecord *record, const QStringList &added)
{
    const QString file = record->file.fileName();
    if (added.isEmpty()) {
        refuse(record,
               tr("%1 registers no plugin named \"%2\": call zepletFactory().regist() in a "
                  "static initialiser of the library.")
                   .arg(file, record->tag.name));
        return;
    }
    if (!added.contains(record->tag.name)) {
        refuse(record,
               tr("%1 registers \"%2\" but is tagged \"%3\": use one name for both.")
                   .arg(file, added.join(QStringLiteral("\", \"")), record->tag.name));
        return;
    }
    record->modules = added;
    for (const QString &module : added)
        m_guard.addModule(module, record->tag.name);
}

/** What was registered since the last call, sorted. */
QStringList PluginLoader::newModules()
{
    QStringList added;
    const auto &makers = bfactory().makers;
    for (auto maker = makers.begin(); maker != makers.end(); ++maker) {
        if (!m_modules.contains(maker.key()))
            added.append(maker.key());
    }
    for (const QString &name : qAsConst(added))
        m_modules.insert(name);
    added.sort();
    return added;
}

const QList<PluginRecord> &PluginLoader::records() const
{
    return m_records;
}

QStringList PluginLoader::moduleNames() const
{
    QStringList names;
    for (const PluginRecord &record : m_records)
        names += record.modules;
    return names;
}

void PluginLoader::markFaulty(const QString &module, const QString &cause)
{
    const QString sentence = withRemedy(cause);
    errorLine() << sentence;
    for (PluginRecord &record : m_records) {
        if (!record.modules.contains(module))
            continue;
        record.state = PluginRecord::Faulty;
        record.sentence = sentence;
    }
    FaultNotice::put(sentence,
                     instantiatedCenterWidget()->page(mName(QStringLiteral("zeplet"), module)));
    mirror();
}

void PluginLoader::tryAgain(const QString &name)
{
    m_guard.tryAgain(name); // what failed in the trial is tried again in any case
    for (PluginRecord &record : m_records) {
        if (record.state == PluginRecord::LeftOut && record.tag.name == name)
            record.sentence
                = tr("%1 takes part again when the panel starts next.").arg(record.file.fileName());
    }
    mirror();
}

void PluginLoader::mirror() const
{
    QJsonArray list;
    for (const PluginRecord &record : m_records)
        list.append(record.toJson());
    m(QStringLiteral("panel.plugins"))->importFromJson(nullptr, list, true, true, true);
}

} // namespace panel
