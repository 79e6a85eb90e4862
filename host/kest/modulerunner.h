#pragma once

#include "hostexport.h"

#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QTimer>

namespace kest
{

class BModule;

/**
 * Makes modules from bfactory() and drives them: setup, afterSetup, init, afterInit, then in each
 * frame render, afterRender, idle, afterIdle, and in the end beforeDetach, detach, destruction.
 *
 * The data node "ostrel.zeplet.<name>" tells how a module fares: "state" is "starting", "running",
 * "faulty", "detached" or "not loaded", "error" the sentence why. What a maker or a hook throws
 * ends there: the module becomes faulty, is called once more for detach, and the others go on. A
 * module that cannot work may say so without throwing, by setting "error" while it is being made.
 *
 * Owns the modules. GUI thread; a hook may run an event loop, in which no frame starts.
 */
class HOST_EXPORT ModuleRunner : public QObject
{
    Q_OBJECT

public:
    explicit ModuleRunner(QObject *parent = nullptr);
    /** Does what shutdown() does. */
    ~ModuleRunner() override;

    /** Makes the modules, then takes all of them through each start hook together. A name that has
     *  a living module is left alone. */
    void start(const QStringList &names);

    /** Runs a frame each interval ms until stopFrames(). */
    void startFrames(int interval = 40);
    void stopFrames();
    /** One frame: every running module renders, then every one idles. */
    void frame();

    /** Detaches and destroys the module. From within a hook: when that hook has returned. */
    void stop(const QString &name);
    /** Ends the frames, detaches all modules, the last started first, destroys them in that order,
     *  and deletes what they left for deferred deletion (also of others). */
    void shutdown();

    /** The living module of that name, or null. */
    BModule *module(const QString &name) const;
    /** The modules being driven, faulty ones included, in the order of their start. */
    QStringList names() const;

    /** Writes a state and its reason into the data store, for modules that never got this far too.
     */
    static void report(const QString &name, const QString &state, const QString &error = {});
    static QString state(const QString &name);
    static QString error(const QString &name);

Q_SIGNALS:
    /** Around each step; step is "construction", the name of a hook, or "destroy". */
    void stepStarted(const QString &name, const QString &step);
    void stepFinished(const QString &name, const QString &step);
    void moduleFaulty(const QString &name, const QString &error);
    /** All modules have rendered and idled. */
    void frameFinished();

private:
    struct Record;
    struct Hook;
    using Records = QList<QSharedPointer<Record>>;

    QSharedPointer<Record> find(const QString &name) const;
    QSharedPointer<Record> make(const QString &name);
    BModule *makeModule(const QString &name);
    void call(Record &record, const Hook &hook);
    template <typename Step>
    bool guarded(Record &record, const QString &step, Step action);
    void fault(Record &record, const QString &error);
    void detach(const Records &records);
    void destroy(Record &record);
    void stopRequested();

    Records m_records;
    QStringList m_stopRequests;
    QTimer m_frameTimer;
    int m_depth = 0;
};

} // namespace kest
