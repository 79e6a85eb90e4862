#include "brisa/controllermanager.h"

#include "brisa/brisalog_p.h"
#include "brisa/hostthread_p.h"
#include "brisa/managerhelper.h"
#include "brisa/statemirror_p.h"
#include "link/client.h"
#include "ostrel/moduleobject.h"

#include <QHash>
#include <QJsonObject>
#include <QUrl>
#include <plainname.h>

namespace brisa
{
namespace
{

const QLatin1String stateCommand("system.state.get");
const QLatin1String paramsCommand("system.controller.get_params");
const QLatin1String statePath("system.state");

QString unusable(const QString &identity)
{
    return ControllerManager::tr(
               "The controller calls its robot \"%1\", which can't name a directory: "
               "its projects are kept as those of an unknown robot. Give the robot "
               "a plain name.")
        .arg(rpc::inOneLine(identity));
}

} // namespace

class ControllerManager::Private
{
public:
    using Nodes = QHash<QString, ostrel::ModuleObject *>;

    explicit Private(ControllerManager *manager)
        : q(manager)
        , client(QStringLiteral("controller"), ioThread())
    {
    }

    ostrel::ModuleObject *node(Nodes &nodes, const QString &path);
    QJsonValue argument(const QString &command, const ostrel::ModuleObject *node);
    bool send(const QString &command, const QJsonValue &data, int timeout);
    ostrel::ModuleObject *exec(const QString &command, const QJsonValue &data, bool wait,
                               int timeout);

    void cache(const QString &command, const QJsonValue &result);
    void failed(const QString &command, const rpc::Answer &answer);
    void mirror(QJsonObject state);
    void readState();
    void ended(bool expected);
    void notified(const QString &method, const QJsonObject &params);

    ControllerManager *q;
    rpc::Client client;
    bool connected = false;
    QString unusableIdentity; ///< the last one: it is told once
    Nodes requests;
    Nodes responses;
    Nodes notifications;
};

ControllerManager::ControllerManager(QObject *parent)
    : QObject(parent)
    , d(new Private(this))
{
    connect(&d->client, &rpc::Client::up, this, [this] { d->readState(); });
    connect(&d->client, &rpc::Client::down, this, [this](bool expected) { d->ended(expected); });
    connect(&d->client, &rpc::Client::notified, this,
            [this](const QString &method, const QJsonValue &params) {
                d->notified(method, params.toObject());
            });
}

ControllerManager::~ControllerManager()
{
    disconnect(&d->client, nullptr, this, nullptr);
    d->client.close();
}

void ControllerManager::open(const QUrl &url)
{
    d->client.open(url);
}

void ControllerManager::close()
{
    d->client.close();
}

bool ControllerManager::isConnected() const
{
    return d->connected;
}

bool ControllerManager::request(const QString &module, const QString &command,
                                const QJsonValue &data, int timeout)
{
    return d->send(module + QLatin1Char('.') + command, data, timeout);
}

bool ControllerManager::request(const QString &command, ostrel::ModuleObject *node, int timeout)
{
    return d->send(command, d->argument(command, node), timeout);
}

ostrel::ModuleObject *ControllerManager::execRequest(const QString &module, const QString &command,
                                                     const QJsonValue &data, bool wait, int timeout)
{
    return d->exec(module + QLatin1Char('.') + command, data, wait, timeout);
}

ostrel::ModuleObject *ControllerManager::execRequest(const QString &command,
                                                     ostrel::ModuleObject *node, bool wait,
                                                     int timeout)
{
    return d->exec(command, d->argument(command, node), wait, timeout);
}

ostrel::ModuleObject *ControllerManager::cmdItemMobj(const QString &group, const QString &path)
{
    if (group == QLatin1String("request"))
        return d->node(d->requests, path);
    if (group == QLatin1String("response"))
        return d->node(d->responses, path);
    if (group == QLatin1String("notify"))
        return d->node(d->notifications, path);
    qCWarning(brisaLog).noquote() << QStringLiteral("controller: no group of nodes: ") + group;
    return d->node(d->requests, QString());
}

ostrel::ModuleObject *ControllerManager::Private::node(Nodes &nodes, const QString &path)
{
    ostrel::ModuleObject *&node = nodes[path];
    if (!node)
        node = new ostrel::ModuleObject(path, q);
    return node;
}

QJsonValue ControllerManager::Private::argument(const QString &command,
                                                const ostrel::ModuleObject *node)
{
    if (!node)
        node = requests.value(command);
    return node ? node->exportToJson() : QJsonValue();
}

bool ControllerManager::Private::send(const QString &command, const QJsonValue &data, int timeout)
{
    if (!connected)
        return false;
    return client.send(command, data, timeout, [this, command](const rpc::Answer &answer) {
        if (answer.isResult())
            cache(command, answer.value);
        else
            failed(command, answer);
    });
}

ostrel::ModuleObject *ControllerManager::Private::exec(const QString &command,
                                                       const QJsonValue &data, bool wait,
                                                       int timeout)
{
    if (!connected)
        return nullptr;
    if (!wait) {
        ostrel::ModuleObject *last = responses.value(command);
        return send(command, data, timeout) && last && !last->isNull() ? last : nullptr;
    }
    const rpc::Answer answer = client.call(command, data, timeout);
    if (!answer.isResult()) {
        client.logFailure(command, answer);
        return nullptr;
    }
    ostrel::ModuleObject *response = node(responses, command);
    response->importFromJson(q, answer.value, true, true, false);
    return response;
}

void ControllerManager::Private::cache(const QString &command, const QJsonValue &result)
{
    ostrel::ModuleObject *response = node(responses, command);
    rpc::deliver(command, [&] { response->importFromJson(q, result, true, true, true); });
}

void ControllerManager::Private::failed(const QString &command, const rpc::Answer &answer)
{
    client.logFailure(command, answer);
    Q_EMIT q->requestFailed(command, rpc::reasonOf(answer),
                            answer.status == rpc::Answer::Status::Refused);
}

// Projects lie in a directory of the robot's identity.
void ControllerManager::Private::mirror(QJsonObject state)
{
    constexpr int longest = 255; // bytes of a directory's name
    const QJsonValue identity = state.value(QLatin1String("id"));
    const QString name = identity.toString();
    const bool usable = name.isEmpty()
        || (names::isPlainName(name) && !name.trimmed().isEmpty()
            && name.toUtf8().size() <= longest);
    if (!usable)
        state.insert(QLatin1String("id"), QString());
    if (!usable && name != unusableIdentity)
        ManagerHelper::throwLog(q, QStringLiteral("warning"), unusable(name));
    if (identity.isString())
        unusableIdentity = usable ? QString() : name;
    mirrorState(state, q);
}

void ControllerManager::Private::readState()
{
    client.require(stateCommand, [this](const QJsonObject &state) {
        cache(stateCommand, state);
        mirror(state);
        client.require(paramsCommand, [this](const QJsonObject &params) {
            cache(paramsCommand, params);
            mirrorParams(params, q);
            connected = true;
            Q_EMIT q->rcConnected();
        });
    });
}

void ControllerManager::Private::ended(bool expected)
{
    if (!connected)
        return;
    connected = false;
    Q_EMIT q->rcDisconnected(expected);
}

void ControllerManager::Private::notified(const QString &method, const QJsonObject &params)
{
    const QString path = params.value(QLatin1String("path")).toString();
    const QJsonValue value = params.value(QLatin1String("value"));
    if (method != QLatin1String("notify") || path.isEmpty() || value.isUndefined()) {
        client.logUnknown(method);
        return;
    }
    if (path == statePath && value.isObject())
        mirror(value.toObject());
    else if (path == statePath)
        client.logUnknown(path + QStringLiteral(" that is no object"));
    if (ostrel::ModuleObject *node = notifications.value(path))
        node->importFromJson(q, value, true, true, true);
}

} // namespace brisa
