#include "programfolder.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <brisa/managerhelper.h>
#include <brisa/settingmanager.h>
#include <ostrel/modulemanager.h>
#include <zeplet/interface/interfacemanager.h>
#include <zeplet/sync/synctool.h>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(program)
};

constexpr int LongestName = 60; // characters, of at most four bytes each
const QString Suffix = QStringLiteral(".prog");
const QString NotesFile = QStringLiteral("/sent.json");
const QByteArray ByteOrderMark = QByteArrayLiteral("\xef\xbb\xbf");

bool isPlainPart(const QString &part)
{
    const bool separates = std::any_of(part.begin(), part.end(), [](QChar c) {
        return c == QLatin1Char('/') || c.category() == QChar::Other_Control;
    });
    return !separates && !part.isEmpty() && part != QLatin1String(".")
        && part != QLatin1String("..");
}

bool isNameCharacter(QChar c)
{
    return c.isLetterOrNumber() || c.isMark() || c.isSurrogate() || c == QLatin1Char('_')
        || c == QLatin1Char('-') || c == QLatin1Char('.') || c == QLatin1Char(' ');
}

/** Narrower than what a file system takes: a name goes through shells and to the controller. */
bool isProgramName(const QString &name)
{
    return !name.isEmpty() && name.size() <= LongestName && name.trimmed() == name
        && name.at(0).isLetterOrNumber() && std::all_of(name.begin(), name.end(), isNameCharacter)
        && QFile::decodeName(QFile::encodeName(name)) == name;
}

QString fingerprint(const QByteArray &content)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());
}

/** What a plain file holds; problem where it can't be had. */
QByteArray contentOf(const QString &path, QString *problem)
{
    const QFileInfo info(path);
    QFile file(path);
    if (info.isSymLink() || QFileInfo(info.path()).isSymLink())
        *problem = Texts::tr("it is a link to another place");
    else if (!info.exists())
        *problem = Texts::tr("it is no longer there");
    else if (!info.isFile())
        *problem = Texts::tr("it is no plain file");
    else if (info.size() > ProgramFolder::LargestFile)
        *problem = Texts::tr("it is larger than 1 MiB");
    else if (!file.open(QIODevice::ReadOnly))
        *problem = file.errorString();
    const QByteArray content = file.isOpen() ? file.readAll() : QByteArray();
    if (file.error() != QFileDevice::NoError)
        *problem = file.errorString();
    return problem->isEmpty() ? content : QByteArray();
}

/** What is read as text must give the same file again. A byte order mark is no text. */
bool isText(const QByteArray &bytes)
{
    const QByteArray again = QString::fromUtf8(bytes).toUtf8();
    return again == bytes || ByteOrderMark + again == bytes;
}

} // namespace

ProgramFolder ProgramFolder::ofOpenProject()
{
    const QString workspace = brisa::ManagerHelper::instance()->settingManager()->getStr(
        QStringLiteral("workspace"), QString());
    const QStringList parts = zeplet::zepletInterface()->getCurProject().split(QLatin1Char('/'));
    ProgramFolder folder;
    if (workspace.isEmpty() || parts.size() != 2
        || !std::all_of(parts.begin(), parts.end(), isPlainPart))
        return folder;
    folder.m_project = parts.last();
    folder.m_path
        = workspace + QLatin1Char('/') + parts.join(QLatin1Char('/')) + QStringLiteral("/program");
    return folder;
}

QStringList ProgramFolder::names(int *left) const
{
    *left = 0;
    if (!isOpen())
        return {};
    QStringList names;
    const QStringList files
        = QDir(m_path).entryList({QLatin1Char('*') + Suffix}, QDir::Files | QDir::System);
    for (const QString &file : files) {
        if (file.endsWith(Suffix) && isProgramName(file.chopped(Suffix.size())))
            names.append(file.chopped(Suffix.size()));
        else
            ++*left;
    }
    std::sort(names.begin(), names.end(), [](const QString &a, const QString &b) {
        const int order = a.compare(b, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : a < b;
    });
    return names;
}

QString ProgramFolder::nameRefusal(const QString &name, const QStringList &taken)
{
    if (name.isEmpty())
        return Texts::tr("The program needs a name.");
    if (name.size() > LongestName)
        return Texts::tr("A name has at most %1 characters.").arg(LongestName);
    if (!isProgramName(name))
        return Texts::tr("A name begins with a letter or a digit and has letters, digits, spaces "
                         "and the signs _ - . only.");
    if (taken.contains(name, Qt::CaseInsensitive))
        return Texts::tr("There is a program \"%1\" already: choose another name.").arg(name);
    return QString();
}

bool ProgramFolder::read(const QString &name, QByteArray *content, QString *refusal) const
{
    QString problem;
    const QByteArray bytes = contentOf(filePath(name), &problem);
    if (problem.isEmpty() && !isText(bytes))
        problem = Texts::tr("it is no text in UTF-8");
    if (!problem.isEmpty()) {
        *refusal = Texts::tr("\"%1\" can't be shown: %2. The file stays as it is; put a text file "
                             "in its place, or choose another program.")
                       .arg(name, problem);
        return false;
    }
    *content = bytes;
    return true;
}

ProgramFolder::Saved ProgramFolder::write(const QString &name, const QByteArray &content) const
{
    if (!isOpen() || !isProgramName(name) || QFileInfo(m_path).isSymLink())
        return Saved::No;
    if (ostrel::ModuleManager::writeFile(filePath(name), content))
        return Saved::Yes;
    // The file is in place where only the sync of its directory failed.
    QString problem;
    const bool inPlace = contentOf(filePath(name), &problem) == content && problem.isEmpty();
    return inPlace ? Saved::Unconfirmed : Saved::No;
}

bool ProgramFolder::remove(const QString &name) const
{
    if (!isOpen() || !isProgramName(name) || QFileInfo(m_path).isSymLink()
        || !QFile::remove(filePath(name)))
        return false;
    note(name, QString());
    return true;
}

// At no time is there none of both.
bool ProgramFolder::rename(const QString &name, const QString &newName) const
{
    QByteArray content;
    QString refusal;
    if (!isOpen() || !read(name, &content, &refusal))
        return false;
    const Saved saved = write(newName, content);
    if (saved == Saved::Yes && remove(name))
        return true;
    if (saved != Saved::No)
        remove(newName);
    return false;
}

bool ProgramFolder::send(const QString &name) const
{
    QByteArray content;
    QString refusal;
    if (!isOpen() || !read(name, &content, &refusal))
        return false;
    const QString remotePath = QStringLiteral("hmi/%1/program/%2").arg(m_project, name) + Suffix;
    if (!zeplet::SyncTool::instance()->pushOneFile(filePath(name), remotePath, false))
        return false;
    note(name, fingerprint(content));
    return true;
}

ProgramFolder::Sent ProgramFolder::sent(const QString &name, const QByteArray &content) const
{
    const QString last = notes().value(name).toString();
    if (last.isEmpty())
        return Sent::Never;
    return last == fingerprint(content) ? Sent::Same : Sent::Older;
}

QString ProgramFolder::filePath(const QString &name) const
{
    return m_path + QLatin1Char('/') + name + Suffix;
}

/** Fingerprints of what the controller got, by program. */
QJsonObject ProgramFolder::notes() const
{
    QString problem;
    return QJsonDocument::fromJson(contentOf(m_path + NotesFile, &problem)).object();
}

/** An empty fingerprint: the panel has no such program any more. */
void ProgramFolder::note(const QString &name, const QString &fingerprint) const
{
    QJsonObject notes = this->notes();
    if (fingerprint.isEmpty() && !notes.contains(name))
        return;
    if (fingerprint.isEmpty())
        notes.remove(name);
    else
        notes.insert(name, fingerprint);
    ostrel::ModuleManager::writeToJson(m_path + NotesFile, notes, true);
}
