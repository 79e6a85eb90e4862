#include "nexo/nexo.h"

#include "brisa/hostthread_p.h"
#include "brisa/managerhelper.h"
#include "brisa/settingmanager.h"
#include "link/client.h"
#include "nexo/hubmirror_p.h"
#include "nexo/watches_p.h"
#include "ostrel/moduleobject.h"

#include <QHash>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QUrl>

namespace
{

Q_LOGGING_CATEGORY(nexoLog, "host.nexo")

/** What a hub command may take where the settings say nothing sensible, seconds. */
constexpr double defaultLimit = 30;
constexpr double shortestLimit = 0.001;
constexpr double longestLimit = 24 * 3600;

const QLatin1String setMethod("hub.set");
const QLatin1String commandMethod("hub.command");
const QLatin1String pluginMethod("hub.plugin");
const QLatin1String watchMethod("hub.watch");

int commandLimit()
{
    const brisa::SettingManager *settings = brisa::ManagerHelper::instance()->settingManager();
    const double seconds = settings->getDouble(QStringLiteral("nexo.limit"), defaultLimit);
    const bool sensible = seconds >= shortestLimit && seconds <= longestLimit;
    return static_cast<int>(1000 * (sensible ? seconds : defaultLimit));
}

QJsonValue toJson(const ostrel::ModuleObject *node)
{
    return node ? node->exportToJson() : QJsonValue();
}

QJsonObject keyAndValue(const QString &key, const QJsonValue &value)
{
    return {{"key", key}, {"value", value}};
}

} // namespace

class Nexo::Private
{
public:
    explicit Private(Nexo *nexo);

    bool send(const QLatin1String &method, const QString &key, const QJsonObject &params,
              const Done &done = {});
    bool sendSet(const QString &key, const QString &subKey, const QJsonValue &value,
                 const Done &done = {});
    ostrel::ModuleObject *exec(const QLatin1String &method, const QString &key,
                               const QJsonObject &params);
    void sendWatch(const QString &key, bool on);

    void readSnapshot();
    void renewWatches(const QStringList &keys, int first);
    void setConnected(bool on);
    void notified(const QString &method, const QJsonObject &params);

    Nexo *q;
    rpc::Client client;
    ostrel::ModuleObject *mobj;
    ostrel::ModuleObject *flag;
    Watches watches;
    HubMirror mirror;
    QHash<QString, ostrel::ModuleObject *> answers; ///< per method and command, owned by the hub
};

Nexo::Private::Private(Nexo *nexo)
    : q(nexo)
    , client(QStringLiteral("hub"), brisa::ioThread())
    , mobj(m(QStringLiteral("nexo")))
    , flag(mobj->r(QStringLiteral("connected")))
    , mirror(mobj->r(QStringLiteral("data")),
             [this](const QString &key) { return watches.contains(key); })
{
    flag->set(q, false, false);
}

Nexo::Nexo(QObject *parent)
    : QObject(parent)
    , d(new Private(this))
{
    connect(&d->client, &rpc::Client::up, this, [this] { d->readSnapshot(); });
    connect(&d->client, &rpc::Client::down, this, [this] { d->setConnected(false); });
    connect(&d->client, &rpc::Client::notified, this,
            [this](const QString &method, const QJsonValue &params) {
                d->notified(method, params.toObject());
            });
    connect(&d->watches, &Watches::ended, this,
            [this](const QString &key) { d->sendWatch(key, false); });
}

Nexo::~Nexo()
{
    disconnect(&d->client, nullptr, this, nullptr);
    d->client.close();
}

void Nexo::open(const QUrl &url)
{
    d->client.open(url);
}

void Nexo::close()
{
    d->client.close();
}

ostrel::ModuleObject *Nexo::get(QObject *origin, const QString &key)
{
    Q_UNUSED(origin)
    return d->mirror.node(key);
}

ostrel::ModuleObject *Nexo::get(QObject *origin, const QString &key, const QString &subKey)
{
    return subKey.isEmpty() ? get(origin, key) : get(origin, key + QLatin1Char('.') + subKey);
}

void Nexo::set(QObject *origin, const QString &key, const QString &subKey, const QVariant &value)
{
    Q_UNUSED(origin)
    d->sendSet(key, subKey, QJsonValue::fromVariant(value));
}

void Nexo::set(QObject *origin, const QString &key, ostrel::ModuleObject *node)
{
    Q_UNUSED(origin)
    d->sendSet(key, QString(), toJson(node));
}

bool Nexo::set(QObject *origin, const QString &key, const QJsonValue &value, const Done &done)
{
    Q_UNUSED(origin)
    return d->sendSet(key, QString(), value, done);
}

void Nexo::command(QObject *origin, const QString &key, const QVariant &value)
{
    Q_UNUSED(origin)
    d->send(commandMethod, key, keyAndValue(key, QJsonValue::fromVariant(value)));
}

void Nexo::command(QObject *origin, const QString &key, ostrel::ModuleObject *node)
{
    Q_UNUSED(origin)
    d->send(commandMethod, key, keyAndValue(key, toJson(node)));
}

bool Nexo::command(QObject *origin, const QString &key, const QJsonValue &value, const Done &done)
{
    Q_UNUSED(origin)
    return d->send(commandMethod, key, keyAndValue(key, value), done);
}

ostrel::ModuleObject *Nexo::execCommand(QObject *origin, const QString &key, const QVariant &value)
{
    Q_UNUSED(origin)
    return d->exec(commandMethod, key, keyAndValue(key, QJsonValue::fromVariant(value)));
}

ostrel::ModuleObject *Nexo::execCommand(QObject *origin, const QString &key,
                                        ostrel::ModuleObject *node)
{
    Q_UNUSED(origin)
    return d->exec(commandMethod, key, keyAndValue(key, toJson(node)));
}

ostrel::ModuleObject *Nexo::execPluginCommand(QObject *origin, const QString &id,
                                              const QString &command, const QVariant &value)
{
    Q_UNUSED(origin)
    const QJsonObject params {
        {"id", id}, {"command", command}, {"value", QJsonValue::fromVariant(value)}};
    return d->exec(pluginMethod, command, params);
}

void Nexo::watch(QObject *origin, const QString &key, bool on)
{
    if (d->watches.set(origin, key, on))
        d->sendWatch(key, on);
}

ostrel::ModuleObject *Nexo::watchNode(const QString &key)
{
    return d->mirror.follower(key);
}

ostrel::ModuleObject *Nexo::mobj()
{
    return d->mobj;
}

bool Nexo::Private::send(const QLatin1String &method, const QString &key, const QJsonObject &params,
                         const Done &done)
{
    const QString title = method + QLatin1Char(' ') + key;
    const int limit = commandLimit();
    const auto answered = [this, title, done](const rpc::Answer &answer) {
        client.logFailure(title, answer);
        if (done)
            done(answer.value, answer.isResult() ? QString() : rpc::reasonOf(answer));
    };
    const bool sent = client.send(method, params, limit, answered);
    if (!sent && !client.isUp())
        qCWarning(nexoLog).noquote() << QStringLiteral("hub: %1 not sent: no link").arg(title);
    return sent;
}

bool Nexo::Private::sendSet(const QString &key, const QString &subKey, const QJsonValue &value,
                            const Done &done)
{
    QJsonObject params = keyAndValue(key, value);
    params.insert(QLatin1String("sub"), subKey);
    return send(setMethod, key, params, done);
}

ostrel::ModuleObject *Nexo::Private::exec(const QLatin1String &method, const QString &key,
                                          const QJsonObject &params)
{
    const QString title = method + QLatin1Char(' ') + key;
    const rpc::Answer answer = client.call(method, params, commandLimit());
    if (!answer.isResult()) {
        client.logFailure(title, answer);
        return nullptr;
    }
    ostrel::ModuleObject *&node = answers[title];
    if (!node)
        node = new ostrel::ModuleObject(key, q);
    node->importFromJson(q, answer.value, true, true, false);
    return node;
}

// Without a link, this is left to the renewal after the next connect.
void Nexo::Private::sendWatch(const QString &key, bool on)
{
    if (client.isUp())
        send(watchMethod, key, {{"key", key}, {"on", on}});
}

void Nexo::Private::readSnapshot()
{
    client.require(QStringLiteral("hub.snapshot"), [this](const QJsonObject &snapshot) {
        mirror.replace(snapshot);
        renewWatches(watches.keys(), 0);
    });
}

// One after the other, so that any number of them stays within the bound of pending requests.
void Nexo::Private::renewWatches(const QStringList &keys, int first)
{
    while (first < keys.size() && !watches.contains(keys.at(first)))
        ++first; // no longer watched
    if (first == keys.size()) {
        setConnected(true);
        return;
    }
    const QJsonObject params {{"key", keys.at(first)}, {"on", true}};
    client.send(watchMethod, params, commandLimit(), [=](const rpc::Answer &answer) {
        client.logFailure(watchMethod + QLatin1Char(' ') + keys.at(first), answer);
        if (answer.status != rpc::Answer::Status::Lost)
            renewWatches(keys, first + 1);
    });
}

void Nexo::Private::setConnected(bool on)
{
    if (flag->getBool(false) != on)
        flag->set(q, on);
}

void Nexo::Private::notified(const QString &method, const QJsonObject &params)
{
    const QString key = params.value(QLatin1String("key")).toString();
    const QJsonValue value = params.value(QLatin1String("value"));
    if (method == QLatin1String("hub.changed") && HubMirror::isKey(key) && !value.isUndefined())
        mirror.set(key, value);
    else
        client.logUnknown(method);
}

Nexo *nexo()
{
    static auto *const hub = new Nexo; // other singletons may use it in their own destructors
    return hub;
}
