#include "kest/modulerunner.h"

#include "brisa/managerhelper.h"
#include "kest/bmodule.h"
#include "kest/modulefactory.h"
#include "ostrel/moduleobject.h"

#include <QCoreApplication>
#include <QPointer>
#include <algorithm>
#include <exception>
#include <utility>

namespace kest
{

struct ModuleRunner::Record {
    QString name;
    QPointer<BModule> module;
    bool faulty = false;
};

struct ModuleRunner::Hook {
    const char *name;
    void (BModule::*call)();
    bool alsoWhenFaulty = false;
};

namespace
{

const QString Starting = QStringLiteral("starting");
const QString Running = QStringLiteral("running");
const QString Faulty = QStringLiteral("faulty");
const QString Detached = QStringLiteral("detached");
const QString NotLoaded = QStringLiteral("not loaded");

const QString Construction = QStringLiteral("construction"); // the others are named after hooks

ostrel::ModuleObject *stateNode(const QString &name)
{
    return m(mName(QStringLiteral("ostrel"), QStringLiteral("zeplet"), name));
}

} // namespace

ModuleRunner::ModuleRunner(QObject *parent)
    : QObject(parent)
{
    connect(&m_frameTimer, &QTimer::timeout, this, &ModuleRunner::frame);
}

ModuleRunner::~ModuleRunner()
{
    shutdown();
}

void ModuleRunner::start(const QStringList &names)
{
    static const Hook hooks[] = {{"setup", &BModule::setup},
                                 {"afterSetup", &BModule::afterSetup},
                                 {"init", &BModule::init},
                                 {"afterInit", &BModule::afterInit}};
    Records started;
    for (const QString &name : names) {
        const auto earlier = find(name);
        if (earlier && earlier->module)
            continue;
        m_records.removeOne(earlier);
        if (const auto record = make(name))
            started.append(record);
    }
    for (const Hook &hook : hooks) {
        for (const auto &record : qAsConst(started))
            call(*record, hook);
    }
    for (const auto &record : qAsConst(started)) {
        if (record->module && !record->faulty)
            report(record->name, Running);
    }
}

void ModuleRunner::startFrames(int interval)
{
    m_frameTimer.start(interval);
}

void ModuleRunner::stopFrames()
{
    m_frameTimer.stop();
}

void ModuleRunner::frame()
{
    static const Hook hooks[] = {{"render", &BModule::render},
                                 {"afterRender", &BModule::afterRender},
                                 {"idle", &BModule::idle},
                                 {"afterIdle", &BModule::afterIdle}};
    if (m_depth > 0)
        return;
    const Records records = m_records;
    for (int phase = 0; phase < 4; phase += 2) {
        for (const auto &record : records) {
            call(*record, hooks[phase]);
            call(*record, hooks[phase + 1]);
        }
    }
    Q_EMIT frameFinished();
}

void ModuleRunner::stop(const QString &name)
{
    const auto record = find(name);
    if (!record)
        return;
    if (m_depth > 0) {
        m_stopRequests.append(name);
        return;
    }
    m_records.removeOne(record);
    detach({record});
    destroy(*record);
}

void ModuleRunner::shutdown()
{
    stopFrames();
    Records records = std::exchange(m_records, {});
    std::reverse(records.begin(), records.end());
    detach(records);
    for (const auto &record : qAsConst(records))
        destroy(*record);
    // The loop that would delete what the modules left may have ended.
    if (QCoreApplication::instance() && !records.isEmpty())
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

BModule *ModuleRunner::module(const QString &name) const
{
    const auto record = find(name);
    return record ? record->module.data() : nullptr;
}

QStringList ModuleRunner::names() const
{
    QStringList names;
    for (const auto &record : m_records)
        names.append(record->name);
    return names;
}

void ModuleRunner::report(const QString &name, const QString &state, const QString &error)
{
    ostrel::ModuleObject *const node = stateNode(name);
    node->set(nullptr, QStringLiteral("error"), error, true);
    node->set(nullptr, QStringLiteral("state"), state, true);
}

QString ModuleRunner::state(const QString &name)
{
    return stateNode(name)->getStr(QStringLiteral("state"), QString());
}

QString ModuleRunner::error(const QString &name)
{
    return stateNode(name)->getStr(QStringLiteral("error"), QString());
}

QSharedPointer<ModuleRunner::Record> ModuleRunner::find(const QString &name) const
{
    const auto it = std::find_if(m_records.cbegin(), m_records.cend(),
                                 [&name](const auto &record) { return record->name == name; });
    return it == m_records.cend() ? QSharedPointer<Record>() : *it;
}

QSharedPointer<ModuleRunner::Record> ModuleRunner::make(const QString &name)
{
    if (!bfactory().makers.value(name)) {
        report(name, NotLoaded, tr("No module is registered under the name \"%1\".").arg(name));
        return {};
    }
    report(name, Starting);
    const auto record = QSharedPointer<Record>::create(Record {name, nullptr, false});
    m_records.append(record);
    if (!guarded(*record, Construction, [&] { record->module = makeModule(name); }))
        return record;
    if (!record->module)
        fault(*record, tr("The maker of \"%1\" returned no module.").arg(name));
    else if (const QString reason = error(name); !reason.isEmpty())
        fault(*record, reason);
    return record;
}

// A maker that throws halfway may have made the module already: what it left below the runner goes.
BModule *ModuleRunner::makeModule(const QString &name)
{
    const QObjectList before = children();
    try {
        return bfactory().makers.value(name)(this);
    } catch (...) {
        const QObjectList after = children();
        for (QObject *child : after) {
            if (!before.contains(child))
                delete child;
        }
        throw;
    }
}

void ModuleRunner::call(Record &record, const Hook &hook)
{
    if (!record.module || (record.faulty && !hook.alsoWhenFaulty))
        return;
    guarded(record, QLatin1String(hook.name), [&] { (record.module->*hook.call)(); });
}

template <typename Step>
bool ModuleRunner::guarded(Record &record, const QString &step, Step action)
{
    QString problem;
    Q_EMIT stepStarted(record.name, step);
    ++m_depth;
    try {
        action();
    } catch (const std::exception &exception) {
        problem = QString::fromLocal8Bit(exception.what());
    } catch (...) {
        problem = tr("an unknown exception");
    }
    --m_depth;
    if (!problem.isNull())
        fault(record,
              step == Construction ? tr("\"%1\" could not be made: %2").arg(record.name, problem)
                                   : tr("\"%1\" failed in %2: %3").arg(record.name, step, problem));
    Q_EMIT stepFinished(record.name, step);
    stopRequested();
    return problem.isNull();
}

void ModuleRunner::fault(Record &record, const QString &error)
{
    record.faulty = true;
    report(record.name, Faulty, error);
    brisa::ManagerHelper::throwLog(record.module, QStringLiteral("error"), error);
    Q_EMIT moduleFaulty(record.name, error);
}

void ModuleRunner::detach(const Records &records)
{
    static const Hook hooks[]
        = {{"beforeDetach", &BModule::beforeDetach}, {"detach", &BModule::detach, true}};
    for (const Hook &hook : hooks) {
        for (const auto &record : records)
            call(*record, hook);
    }
}

void ModuleRunner::destroy(Record &record)
{
    Q_EMIT stepStarted(record.name, QStringLiteral("destroy"));
    delete record.module;
    Q_EMIT stepFinished(record.name, QStringLiteral("destroy"));
    if (!record.faulty)
        report(record.name, Detached);
}

void ModuleRunner::stopRequested()
{
    while (m_depth == 0 && !m_stopRequests.isEmpty())
        stop(m_stopRequests.takeFirst());
}

} // namespace kest
