#pragma once

#include "refusal.h"

#include <QJsonObject>
#include <QObject>
#include <QStringList>

namespace simulator
{

/**
 * The projects that the controller knows: those with a task, the open one, and the one that it
 * loads when it starts. Lives on the simulator's thread.
 */
class Projects : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMaxProjects = 1000;

    struct Values {
        QString autoloadPath; ///< its first step is a project's name; "": none
        QString open = {}; ///< the project that is opened at the start instead; "": none
        QJsonObject values = {}; ///< what its variables hold then, where their file says otherwise
        QStringList names = {}; ///< those with a task
        QStringList tasks {QStringLiteral("task0")}; ///< of every project; the first one is current
        QString function = QStringLiteral("main");
    };

    /** `root` is the directory of the projects' directories; "": the controller has no files. */
    Projects(const Values &values, const QString &root, QObject *parent = nullptr);

    /** Opens the project that is to be open at the start, if there is one. */
    Refusal load();
    /** Makes the project's directory and the one of its programs where they are missing, and its
     *  task. Refused for a name that is
     *  no plain path component. */
    Refusal open(const QString &name);
    /** Drops the task of a project; its files stay. A project without a task has nothing to drop.
     */
    Refusal removeTask(const QString &name);
    /** "" for none. Refused where the first step is no plain path component. */
    Refusal setAutoload(const QString &path);

    /** The open project; "": none. */
    QString current() const { return m_current; }
    /** The path of a file of the open project; "" where there is none, or no files. */
    QString filePath(const QString &file) const;
    /** What travels as `project.overview`. */
    QJsonObject toJson() const;

    /** Why a text is no name of a project; nothing where it is one. */
    static Refusal checkName(const QString &name);

signals:
    void changed();
    /** A project has been opened, perhaps the one that was open. */
    void opened(const QString &name);

private:
    Refusal makeDirectory(const QString &name) const;

    Values m_values;
    QString m_root;
    QString m_current;
};

} // namespace simulator
