#include "brisa/managerhelper.h"

#include "brisa/brisalog_p.h"
#include "brisa/controllermanager.h"
#include "brisa/hostthread_p.h"
#include "brisa/settingmanager.h"
#include "brisa/tasknetworkmanager.h"
#include "brisa/thememanager.h"
#include "link/iothread.h"
#include "nexo/nexo.h"

#include <QCoreApplication>
#include <QDir>
#include <QPointer>
#include <QRegularExpression>
#include <QThread>
#include <QUrl>

namespace brisa
{

Q_LOGGING_CATEGORY(brisaLog, "host.brisa")

namespace
{

ManagerHelper *theHelper = nullptr;

/** Empty where ip is no host or the port is none. */
QUrl endpoint(const QString &ip, int port)
{
    QUrl url;
    url.setScheme(QStringLiteral("ws"));
    url.setHost(ip.trimmed());
    if (url.host().isEmpty() || port < 1 || port > 65535)
        return QUrl();
    url.setPort(port);
    return url;
}

} // namespace

class ManagerHelper::Private
{
public:
    QUrl endpoint(const QString &portKey, int defaultPort) const;

    SettingManager settings;
    ControllerManager controller;
    TaskNetworkManager network {&controller};
    bool linksOpen = false;
    bool ready = false;
};

ManagerHelper *ManagerHelper::instance()
{
    if (!theHelper)
        theHelper = new ManagerHelper;
    return theHelper;
}

ManagerHelper::ManagerHelper()
    : d(new Private)
{
    connect(&d->settings, &SettingManager::changed, this, [this](const QString &key) {
        if (d->linksOpen && key.startsWith(QLatin1String("server.")))
            openLinks();
    });
}

ManagerHelper::~ManagerHelper() = default;

ControllerManager *ManagerHelper::controllerManager() const
{
    return &d->controller;
}

SettingManager *ManagerHelper::settingManager() const
{
    return &d->settings;
}

TaskNetworkManager *ManagerHelper::taskNetworkManager() const
{
    return &d->network;
}

ThemeManager *ManagerHelper::themeManager() const
{
    return ThemeManager::instance();
}

void ManagerHelper::registQrcAlias(const QString &name)
{
    static const QRegularExpression valid(QStringLiteral("\\A[A-Za-z0-9_-]+\\z"));
    if (!valid.match(name).hasMatch()) {
        qCWarning(brisaLog).noquote() << QStringLiteral("no alias for resources: ") + name;
        return;
    }
    // Plugins may have such a name; Qt gives it no alias.
    if (name.size() < 2 || name.contains(QLatin1Char('-')) || name.contains(QLatin1Char('_'))) {
        qCInfo(brisaLog).noquote()
            << QStringLiteral("resources have no alias for their name: ") << name;
        return;
    }
    QDir::setSearchPaths(name, {QStringLiteral(":/") + name});
}

void ManagerHelper::throwLog(QObject *sender, const QString &level, const QString &message)
{
    ManagerHelper *helper = instance();
    if (QThread::currentThread() == helper->thread()) {
        Q_EMIT helper->logThrown(sender, level, message);
        return;
    }
    const QPointer<QObject> guarded(sender);
    QMetaObject::invokeMethod(helper, [=] { Q_EMIT helper->logThrown(guarded, level, message); });
}

void ManagerHelper::openLinks()
{
    d->linksOpen = true;
    d->controller.close();
    nexo()->close();
    const QUrl controller = d->endpoint(QStringLiteral("server.port"), 9011);
    const QUrl hub = d->endpoint(QStringLiteral("server.hub_port"), 9012);
    if (!controller.isEmpty())
        d->controller.open(controller);
    if (!hub.isEmpty())
        nexo()->open(hub);
}

void ManagerHelper::shutdown()
{
    if (!theHelper || !theHelper->d->linksOpen)
        return;
    theHelper->d->linksOpen = false;
    theHelper->d->controller.close();
    nexo()->close();
    ioThread()->shutdown();
}

bool ManagerHelper::isReady() const
{
    return d->ready;
}

void ManagerHelper::setReady(bool ready)
{
    d->ready = ready;
}

QUrl ManagerHelper::Private::endpoint(const QString &portKey, int defaultPort) const
{
    const QString ip = settings.getStr(QStringLiteral("server.ip"), QString());
    const int port = settings.getInt(portKey, defaultPort);
    const QUrl url = brisa::endpoint(ip, port);
    if (url.isEmpty())
        qCWarning(brisaLog).noquote() << QStringLiteral("no link: the settings server.ip \"") + ip
                + QStringLiteral("\" and %1 %2 are no address").arg(portKey).arg(port);
    return url;
}

rpc::IoThread *ioThread()
{
    // It outlives every static object that holds a link; none of its sockets outlives Qt.
    static auto *const thread = [] {
        qAddPostRoutine([] { ioThread()->shutdown(); });
        return new rpc::IoThread;
    }();
    return thread;
}

} // namespace brisa
