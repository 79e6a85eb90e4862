#pragma once

#include <zeplet/export.h>

#include <QHash>
#include <QString>
#include <functional>

class QObject;

namespace zeplet
{

class PluginBase;

/**
 * The factories of the plugins by name (case-sensitive). GUI thread; no locks.
 */
class ZEPLET_EXPORT PluginRegister
{
public:
    /** Makes the plugin as a child of the object. */
    using Factory = std::function<PluginBase *(QObject *)>;

    /**
     * Makes a plugin known: here, in the host's module factory and in the host's plugin manager.
     * The first registration of a name wins; a later one changes nothing. Call it from a static
     * initialiser of the plugin's library. The factory makes the plugin as a child of the object
     * that it is given, and must not return null.
     */
    void regist(const QString &name, Factory factory);

    /** Calls the factory of that name; null where there is none. An empty factory throws
     *  std::bad_function_call. The caller owns the plugin through its parent. */
    PluginBase *create(const QString &name, QObject *parent);

    /** Forgets the factory. The entries in the host's tables stay. */
    void cancel(const QString &name);

private:
    void registerModule(const QString &name);

    QHash<QString, Factory> m_factories;
};

/** The process-wide register, made on first use, from any thread. */
ZEPLET_EXPORT PluginRegister &zepletFactory();

} // namespace zeplet
