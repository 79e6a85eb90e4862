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
    return problem->isEmpty() ? file.readAll() : QByteArray();
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
        if (isProgramName(file.chopped(Suffix.size())))
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
    // What is read as text must give the same file again.
    if (problem.isEmpty() && QString::fromUtf8(bytes).toUtf8() != bytes)
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

bool ProgramFolder::write(const QString &name, const QByteArray &content) const
{
    return isOpen() && isProgramName(name) && !QFileInfo(m_path).isSymLink()
        && ostrel::ModuleManager::writeFile(filePath(name), content);
}

bool ProgramFolder::remove(const QString &name) const
{
    if (!isOpen() || !isProgramName(name) || !QFile::remove(filePath(name)))
        return false;
    note(name, QString());
    return true;
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
    QString problem;
    const QJsonObject notes
        = QJsonDocument::fromJson(contentOf(m_path + QStringLiteral("/sent.json"), &problem))
              .object();
    const QString last = notes.value(name).toString();
    if (last.isEmpty())
        return Sent::Never;
    return last == fingerprint(content) ? Sent::Same : Sent::Older;
}

QString ProgramFolder::filePath(const QString &name) const
{
    return m_path + QLatin1Char('/') + name + Suffix;
}

/** An empty fingerprint: the panel has no such program any more. */
void ProgramFolder::note(const QString &name, const QString &fingerprint) const
{
    const QString path = m_path + QStringLiteral("/sent.json");
    QString problem;
    QJsonObject notes = QJsonDocument::fromJson(contentOf(path, &problem)).object();
    if (fingerprint.isEmpty())
        notes.remove(name);
    else
        notes.insert(name, fingerprint);
    ostrel::ModuleManager::writeToJson(path, notes, true);
}
