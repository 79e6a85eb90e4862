#include "testpanel.h"

#include "parts/panelsite.h"

#include <mainwindow.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QScrollArea>
#include <QTest>
#include <kest/centerwidget.h>
#include <kest/modulerunner.h>
#include <ostrel/moduleobject.h>

namespace zeplet
{
namespace test
{

namespace
{

/** "SIM-0001/test": below the workspace. */
QString currentProject()
{
    return m(QStringLiteral("tavik.project.cur_project"))->getStr(QString());
}

QString orNothing(const QStringList &parts)
{
    return parts.isEmpty() ? QStringLiteral("nothing") : parts.join(QStringLiteral(", "));
}

QString counted(const QJsonObject &counts)
{
    QStringList parts;
    for (auto count = counts.begin(); count != counts.end(); ++count)
        parts += QStringLiteral("%1 (%2)").arg(count.key()).arg(count->toInt());
    return orNothing(parts);
}

QString textOf(const QAbstractButton *button)
{
    return button->text().remove(QLatin1Char('&'));
}

bool isNamed(const QAbstractButton *button, const QString &name)
{
    return button->objectName() == name || textOf(button) == name;
}

void scrollTo(QWidget *widget)
{
    for (QWidget *above = widget->parentWidget(); above; above = above->parentWidget()) {
        if (auto *const area = qobject_cast<QScrollArea *>(above))
            area->ensureWidgetVisible(widget);
    }
}

} // namespace

class TestPanel::Private : public PanelSite
{
public:
    using PanelSite::PanelSite;

    /** Else with the reason in problem. */
    bool isStarted()
    {
        return (session && simulator && bus)
            || fail(problem.isEmpty() ? QStringLiteral("The panel was not started.") : problem);
    }
};

TestPanel::TestPanel(const PanelSetup &setup)
    : d(std::make_unique<Private>(setup))
{
}

TestPanel::~TestPanel() = default;

bool TestPanel::start()
{
    const bool done = d->start();
    if (d->bus)
        d->bus->clear();
    return done;
}

QString TestPanel::problem() const
{
    return d->problem;
}

QWidget *TestPanel::window() const
{
    return d->session ? &d->session->window() : nullptr;
}

QWidget *TestPanel::page(const QString &plugin)
{
    if (!d->isStarted())
        return nullptr;
    const QString key = QStringLiteral("zeplet.") + plugin;
    if (!d->session->window().showPage(key)) {
        d->fail(QStringLiteral("There is no page of a plugin \"%1\"; there run: %2.")
                    .arg(plugin, d->plugins().join(QStringLiteral(", "))));
        return nullptr;
    }
    // Pages are styled in a frame, and laid out after it.
    if (!d->waitForFrames(2)) {
        d->fail(QStringLiteral("The panel stands still: a plugin holds it up."));
        return nullptr;
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    return instantiatedCenterWidget()->page(key);
}

bool TestPanel::click(QWidget *in, const QString &text)
{
    if (!in)
        return d->fail(QStringLiteral("There is no widget to find the button \"%1\" in. %2")
                           .arg(text, d->problem)
                           .trimmed());
    QStringList there;
    bool isDisabled = false;
    for (QAbstractButton *const button : in->findChildren<QAbstractButton *>()) {
        if (!button->isVisible())
            continue;
        if (!button->isEnabled()) {
            isDisabled = isDisabled || isNamed(button, text);
            continue;
        }
        if (isNamed(button, text)) {
            scrollTo(button);
            QTest::mouseClick(button, Qt::LeftButton);
            return true;
        }
        there += button->text().isEmpty() ? button->objectName() : textOf(button);
    }
    if (isDisabled)
        return d->fail(QStringLiteral("The button \"%1\" is disabled.").arg(text));
    return d->fail(QStringLiteral("No button \"%1\" can be clicked; there can: %2.")
                       .arg(text, orNothing(there)));
}

bool TestPanel::waitForEvent(ZepletEventType type, ZepletEvent *event, int timeout)
{
    if (!d->isStarted())
        return false;
    if (!QTest::qWaitFor([&] { return d->bus->last(type).has_value(); }, timeout))
        return d->fail(QStringLiteral("No event %1 came within %2 ms; there came: %3.")
                           .arg(eventTypeToString(type))
                           .arg(timeout)
                           .arg(d->bus->summary()));
    if (event)
        *event = *d->bus->last(type);
    return true;
}

void TestPanel::clearEvents()
{
    d->banners.clear();
    if (d->bus)
        d->bus->clear();
    if (d->simulator)
        d->simulator->call([](simulator::Simulator &s) { s.requests().clear(); });
}

bool TestPanel::expectRequest(const QString &command, QJsonValue *arguments, int timeout)
{
    if (!d->isStarted())
        return false;
    if (!QTest::qWaitFor([&] { return requests(command) > 0; }, timeout)) {
        const QJsonObject counts
            = d->simulator->call([](simulator::Simulator &s) { return s.requests().counts(); });
        return d->fail(QStringLiteral("No request %1 came within %2 ms; there came: %3.")
                           .arg(command)
                           .arg(timeout)
                           .arg(counted(counts)));
    }
    if (arguments)
        *arguments = d->simulator->last(command);
    return true;
}

int TestPanel::requests(const QString &command) const
{
    return d->simulator ? d->simulator->count(command) : 0;
}

bool TestPanel::expectBanner(const QString &level, const QString &part, int timeout)
{
    const auto hasCome = [&] {
        return std::any_of(d->banners.cbegin(), d->banners.cend(), [&](const QString &banner) {
            return banner.startsWith(level + QStringLiteral(": ")) && banner.contains(part);
        });
    };
    return QTest::qWaitFor(hasCome, timeout)
        || d->fail(QStringLiteral("No banner \"%1: ...%2...\" came within %3 ms; there came: %4.")
                       .arg(level, part)
                       .arg(timeout)
                       .arg(d->banners.isEmpty() ? QStringLiteral("nothing")
                                                 : d->banners.join(QStringLiteral(" | "))));
}

QStringList TestPanel::banners() const
{
    return d->banners;
}

QJsonValue TestPanel::control(const QString &line, QString *problem)
{
    if (!d->simulator)
        d->fail(QStringLiteral("The panel was not started."));
    else if (const auto reply
             = d->simulator->call([&line](simulator::Simulator &s) { return s.control(line); });
             reply.isDone())
        return reply.result;
    else
        d->fail(reply.reason);
    if (problem)
        *problem = d->problem;
    return QJsonValue(QJsonValue::Undefined);
}

bool TestPanel::injectFault(const QString &fault, const QString &command, const QJsonObject &more)
{
    if (!d->simulator)
        return d->fail(QStringLiteral("The panel was not started."));
    QJsonObject entry = more;
    entry.insert(QStringLiteral("fault"), fault);
    if (!command.isEmpty())
        entry.insert(QStringLiteral("command"), command);
    // The words of a scenario, with its checks.
    const QJsonObject scenario {{"faults", QJsonArray {entry}}};
    const auto read = simulator::Scenario::fromText(QJsonDocument(scenario).toJson(), &d->problem);
    if (!read)
        return false;
    Surroundings::expectFaults();
    d->simulator->call(
        [&read](simulator::Simulator &s) { s.faults().add(read->faults.constFirst()); });
    return true;
}

void TestPanel::clearFaults()
{
    if (d->simulator)
        d->simulator->call([](simulator::Simulator &s) { s.faults().clear(); });
}

QString TestPanel::panelFile(const QString &name) const
{
    const QString project = currentProject();
    return d->session && !project.isEmpty()
        ? d->directory->filePath(QStringLiteral("workspace/%1/%2").arg(project, name))
        : QString();
}

QString TestPanel::controllerFile(const QString &name) const
{
    const QString project = currentProject().section(QLatin1Char('/'), 1);
    return d->session && !project.isEmpty()
        ? d->directory->filePath(QStringLiteral("controller/hmi/%1/%2").arg(project, name))
        : QString();
}

QStringList TestPanel::detach(const QString &plugin)
{
    const QStringList plugins = d->plugins();
    if (!d->session || !d->session->runner().module(plugin)) {
        d->fail(QStringLiteral("No plugin \"%1\" runs; there run: %2.")
                    .arg(plugin, plugins.join(QStringLiteral(", "))));
        return {d->problem};
    }
    return d->leftovers->detach(d->session->runner(), plugin, plugins);
}

} // namespace test
} // namespace zeplet
