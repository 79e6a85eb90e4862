#pragma once

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonObject>
#include <QString>

namespace panel
{

/**
 * Finds the plugin that takes the panel down while it starts, and keeps it out of the next start.
 *
 * Before each step of a plugin's start its name and its file's state go into the file "starting" of
 * the runtime directory; between steps there is none. A panel that finds a name there died in that
 * step, with the file as it was then: it enters the plugin into "left-out.json", which holds until
 * the plugin's file changes or someone asks to try it again. A step costs one write and no sync:
 * what the process wrote survives its death. A second panel in the same runtime directory neither
 * reads nor writes there. GUI thread.
 */
class StartGuard
{
public:
    /** Makes the directory where it is missing, and evaluates what the last start left. */
    explicit StartGuard(const QString &runtimeDirectory);
    ~StartGuard();

    /** False where another panel uses the directory or it can't be written: nothing is guarded. */
    bool isActive() const;

    /** Opening that plugin's file begins. */
    void enterLoading(const QString &name, const QString &library);
    /** The plugin has one more module, which its library registered beside its own. */
    void addModule(const QString &module, const QString &name);
    /** A step of that module begins. */
    void enter(const QString &module, const QString &step);
    /** The step is over; nothing is being started. */
    void leave();

    /** Whether the plugin in that file took an earlier start down and has not changed since. */
    bool isLeftOut(const QString &name, const QFileInfo &library) const;
    /** The step in which the plugin took the panel down, for a person: "init". */
    QString fatalStep(const QString &name) const;
    /** Lets the plugin take part in the next start (in this one, before it is loaded); false where
     *  it was not left out. */
    bool tryAgain(const QString &name);

private:
    bool lock();
    void write(const QByteArray &entry);
    void evaluateLastStart();
    void save() const;

    QString m_listFile;
    QFile m_starting;
    bool m_active = false;
    QHash<QString, QJsonObject> m_libraries; ///< plugin name to its file's state, of this start
    QHash<QString, QString> m_plugins; ///< module to plugin name, where they differ
    QJsonObject m_leftOut; ///< plugin name to its file's state and the fatal step
};

} // namespace panel
