#pragma once

#include "pluginrecord.h"

#include <QList>
#include <QObject>
#include <QSet>
#include <QStringList>

namespace panel
{

class LoadTrial;
class StartGuard;

/**
 * Finds plugin libraries, opens those that fit and keeps a record of each. An open library stays
 * for the life of the process, because what it registered points into it. The records are mirrored
 * into the data store as the list "panel.plugins". GUI thread.
 */
class PluginLoader : public QObject
{
    Q_OBJECT

public:
    /** The guard and the trial outlive this object. */
    PluginLoader(StartGuard &guard, LoadTrial &trial, QObject *parent = nullptr);

    /** Loads every library (*.so) of the directory, in the order of their names; what else bears
     *  such a name gets a record, too. A directory counts once; one that can't be read is said to
     *  the operator. Runs the libraries' initialisers, those of unknown libraries in a child first;
     *  blocks for both and for the disk. */
    void loadDirectory(const QString &path);

    const QList<PluginRecord> &records() const;
    /** The modules that the loaded libraries offer, in the order of loading. */
    QStringList moduleNames() const;

    /** Logs the cause and marks the plugin of that module as one that no longer runs. */
    void markFaulty(const QString &module, const QString &cause);
    /** Lets a plugin that was left out take part in the next start. */
    void tryAgain(const QString &name);

private:
    bool isWelcome(PluginRecord *record) const;
    /** The record's name is another one's: which, and what to do. */
    QString takenSentence(const PluginRecord &record) const;
    void load(int index);
    void tryOut(int first);
    void open(PluginRecord *record);
    void takeModules(PluginRecord *record, const QStringList &added);
    QStringList newModules();
    void mirror() const;

    StartGuard &m_guard;
    LoadTrial &m_trial;
    QSet<QString> m_directories; ///< that were loaded
    QSet<QString> m_tried; ///< paths that got through this start's trial
    QList<PluginRecord> m_records;
    QSet<QString> m_modules; ///< all that were registered when newModules() looked last
};

} // namespace panel
