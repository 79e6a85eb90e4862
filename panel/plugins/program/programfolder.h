#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

/**
 * The programs of the open project: the files "NAME.prog" in its directory "program", text in
 * UTF-8. What was last sent to the controller is noted beside them, in "sent.json", so that a panel
 * knows it after a restart, too. GUI thread. Everything but nameRefusal() blocks for the disk.
 */
class ProgramFolder
{
public:
    static constexpr int LargestFile = 1024 * 1024; // bytes

    /** On the controller: the text of the panel, another one, or, as far as is known, none. */
    enum class Sent { Same, Older, Never };

    /** On the panel's disk; on it, but maybe not yet for good; as it was before. */
    enum class Saved { Yes, Unconfirmed, No };

    /** That of the project that is open now. */
    static ProgramFolder ofOpenProject();

    bool isOpen() const { return !m_path.isEmpty(); }
    /** The project's name. */
    QString project() const { return m_project; }
    bool operator==(const ProgramFolder &other) const { return m_path == other.m_path; }
    bool operator!=(const ProgramFolder &other) const { return m_path != other.m_path; }

    /** Names of the programs in order. left: how many files have names that no program can have. */
    QStringList names(int *left) const;
    /** Why a new program can't have the name, as a sentence; empty where it can. */
    static QString nameRefusal(const QString &name, const QStringList &taken);

    /** False where the program can't be shown, with the reason and what to do as a sentence. */
    bool read(const QString &name, QByteArray *content, QString *refusal) const;
    /** Old or new, never half. What went wrong is in the panel's log. */
    Saved write(const QString &name, const QByteArray &content) const;
    bool remove(const QString &name) const;
    /** To a name that no program has. On failure the program is there as it was. */
    bool rename(const QString &name, const QString &newName) const;

    /** Copies the program to the controller. **Blocks** for up to 30 s. */
    bool send(const QString &name) const;
    Sent sent(const QString &name, const QByteArray &content) const;

private:
    QString filePath(const QString &name) const;
    QJsonObject notes() const;
    void note(const QString &name, const QString &fingerprint) const;

    QString m_project;
    QString m_path; ///< empty: no project is open
};
