#include "homepage.h"

#include "factscard.h"
#include "robotstate.h"
#include "statuscard.h"

#include <QGridLayout>
#include <QJsonArray>
#include <QJsonObject>
#include <QVBoxLayout>
#include <brisa/elidedlabel.h>
#include <brisa/managerhelper.h>
#include <brisa/settingmanager.h>
#include <brisa/thememanager.h>
#include <brisa/translated.h>
#include <ostrel/moduleobject.h>

namespace panel
{

using brisa::ThemeManager;
namespace metrics = brisa::metrics;

namespace
{

constexpr int PageMargin = 3 * metrics::Grid;
constexpr int Columns = 3;

ostrel::ModuleObject *pluginRecords()
{
    return m(QStringLiteral("panel.plugins"));
}

Reading pluginReading(int running, int troubled)
{
    if (troubled > 0)
        return {brisa::Glyph::Warning, Tone::Warning,
                HomePage::tr("%1 of %2").arg(running).arg(running + troubled),
                HomePage::tr("The page \"Overview\" says why")};
    return {brisa::Glyph::Plugin, Tone::Muted, QString::number(running),
            HomePage::tr("All plugins are running")};
}

/** What the operator can do now, in one line. */
QString summary(const RobotState &robot)
{
    if (!robot.controllerConnected())
        return HomePage::tr("Nothing can be commanded until the controller is found.");
    if (robot.running().value_or(false))
        return HomePage::tr("A program is running: keep clear of the robot.");
    if (robot.powered().value_or(false))
        return HomePage::tr("The motors are on: the robot is ready to move.");
    return HomePage::tr("The motors are off: the robot stands still.");
}

QString controllerAddress()
{
    const auto *const settings = brisa::ManagerHelper::instance()->settingManager();
    return settings->getStr(QStringLiteral("server.ip"), QString()) + ':'
        + settings->getStr(QStringLiteral("server.port"), QString());
}

} // namespace

HomePage::HomePage(const RobotState &robot, QWidget *parent)
    : QWidget(parent)
    , m_robot(robot)
    , m_title(new brisa::ElidedLabel(QString(), this))
    , m_subtitle(new brisa::ElidedLabel(QString(), this))
    , m_connection(new StatusCard([] { return tr("Connection"); }, this))
    , m_power(new StatusCard([] { return tr("Motor power"); }, this))
    , m_mode(new StatusCard([] { return tr("Operating mode"); }, this))
    , m_run(new StatusCard([] { return tr("Program"); }, this))
    , m_user(new StatusCard([] { return tr("User"); }, this))
    , m_plugins(new StatusCard([] { return tr("Plugins"); }, this))
    , m_facts(new FactsCard(
          [] {
              return QStringList {tr("Robot type"), tr("Identity"), tr("Controller version"),
                                  tr("Controller address")};
          },
          this))
{
    buildLayout();
    connect(&robot, &RobotState::changed, this, &HomePage::refreshRobot);
    connect(pluginRecords(), &ostrel::ModuleObject::changed, this, &HomePage::refreshPlugins);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this, &HomePage::applyTheme);
    brisa::translated(this, [this] {
        refreshRobot();
        refreshPlugins();
    });
    applyTheme();
}

QString HomePage::key()
{
    return QStringLiteral("panel.home");
}

void HomePage::buildLayout()
{
    m_title->setFont(ThemeManager::font(brisa::TextSize::Heading, true));
    m_subtitle->setFont(ThemeManager::font(brisa::TextSize::Body));
    auto *const titles = new QVBoxLayout;
    titles->setSpacing(metrics::Grid / 2);
    titles->addWidget(m_title);
    titles->addWidget(m_subtitle);

    auto *const grid = new QGridLayout(this);
    grid->setContentsMargins(PageMargin, PageMargin, PageMargin, PageMargin);
    grid->setSpacing(metrics::Margin);
    grid->addLayout(titles, 0, 0, 1, Columns);
    const QList<StatusCard *> cards {m_connection, m_power, m_mode, m_run, m_user, m_plugins};
    for (int i = 0; i < cards.size(); ++i) {
        grid->addWidget(cards.at(i), 1 + i / Columns, i % Columns);
        grid->setRowStretch(1 + i / Columns, 1);
        grid->setColumnStretch(i % Columns, 1);
    }
    grid->addWidget(m_facts, 3, 0, 1, Columns);
}

void HomePage::applyTheme()
{
    m_subtitle->setColour(ThemeManager::instance()->colours().mutedText);
    setStyleSheet(ThemeManager::instance()->styleSheet());
}

void HomePage::refreshRobot()
{
    const QString type = m_robot.robotType();
    m_title->setText(type.isEmpty() ? tr("Robot") : type);
    m_subtitle->setText(summary(m_robot));
    m_facts->setValues({type, m_robot.identity(), m_robot.version(), controllerAddress()});
    m_connection->setReading(connectionReading(m_robot));
    m_power->setReading(powerReading(m_robot));
    m_mode->setReading(modeReading(m_robot));
    m_run->setReading(runReading(m_robot));
    m_user->setReading(userReading(m_robot));
}

void HomePage::refreshPlugins()
{
    int running = 0;
    const QJsonArray records = pluginRecords()->exportToJson(true).toArray();
    for (const QJsonValue &record : records)
        running += record.toObject().value(QLatin1String("state")) == QLatin1String("running");
    m_plugins->setReading(pluginReading(running, records.size() - running));
}

} // namespace panel
