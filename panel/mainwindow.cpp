#include "mainwindow.h"

#include "clocklabel.h"
#include "homepage.h"
#include "robotreadings.h"
#include "robotstate.h"
#include "runkeys.h"
#include "statusbadge.h"
#include "waitstrip.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QShortcut>
#include <QVBoxLayout>
#include <brisa/elidedlabel.h>
#include <brisa/logbanner.h>
#include <brisa/modalcounter.h>
#include <brisa/thememanager.h>
#include <brisa/translated.h>
#include <kest/centerwidget.h>
#include <kest/expandsidebar.h>
#include <kest/statusbar.h>
#include <kivra/navigation.h>
#include <kivra/navigationbar.h>
#include <kivra/physicalbuttonbar.h>
#include <ostrel/moduleobject.h>

namespace panel
{

namespace
{

constexpr QSize PanelSize(1280, 800);
constexpr int LongestName = 240; // before it is elided

} // namespace

// The centre area comes first: navigation and keys follow it.
MainWindow::MainWindow(const RobotState &robot, QWidget *parent)
    : QWidget(parent)
    , m_robot(robot)
    , m_statusBar(new kest::StatusBar(this))
    , m_center(new kest::CenterWidget(this))
    , m_sideBar(new kest::ExpandSideBar(this))
{
    setMinimumSize(PanelSize);
    buildLayout();
    fillStatusBar();
    addHomePage();
    connect(&robot, &RobotState::changed, this, &MainWindow::refreshBadges);
    auto *const fullScreen = new QShortcut(Qt::Key_F11, this);
    connect(fullScreen, &QShortcut::activated, this,
            [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });
    brisa::translated(this, [this] {
        setWindowTitle(tr("Robot panel"));
        refreshBadges();
    });
}

MainWindow::~MainWindow() = default;

QSize MainWindow::sizeHint() const
{
    return PanelSize;
}

void MainWindow::buildLayout()
{
    auto *const row = new QHBoxLayout;
    row->setSpacing(0);
    row->addWidget(new qo::kivra::NavigationBar(this));
    row->addWidget(m_center, 1);
    row->addWidget(m_sideBar);
    row->addWidget(new qo::kivra::PhysicalButtonBar(Qt::Vertical, this));
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_statusBar);
    column->addWidget(new WaitStrip(this));
    column->addLayout(row, 1);
    column->addWidget(new brisa::LogBanner(this));
    new brisa::ModalCounter(this);
}

/** The robot's name comes first, then the plugins' items; the host's sit right of the stretch. */
void MainWindow::fillStatusBar()
{
    m_name = new brisa::ElidedLabel(QString(), m_statusBar);
    m_name->setFont(brisa::ThemeManager::font(brisa::TextSize::Title, true));
    m_statusBar->addBeforeItem(nullptr, QStringLiteral("panel.status.name"),
                               QStringLiteral("tavik.body.statuspage.wgtStrech2"), m_name);
    m_connection = addBadge(QStringLiteral("panel.status.connection"));
    m_mode = addBadge(QStringLiteral("panel.status.mode"));
    m_power = addBadge(QStringLiteral("panel.status.power"));
    m_run = addBadge(QStringLiteral("panel.status.run"));
    m_statusBar->addBeforeItem(nullptr, QStringLiteral("panel.status.clock"), QString(),
                               new ClockLabel(m_statusBar));
    m_statusBar->addBeforeItem(nullptr, QStringLiteral("panel.status.run_keys"), QString(),
                               new RunKeys(m_robot, m_statusBar));
}

StatusBadge *MainWindow::addBadge(const QString &name)
{
    auto *const badge = new StatusBadge(m_statusBar);
    m_statusBar->addBeforeItem(nullptr, name, QString(), badge);
    return badge;
}

void MainWindow::addHomePage()
{
    m_center->addPage(nullptr, HomePage::key(), new HomePage(m_robot, m_center));
    // The first group; plugins enter themselves below "robot.pack".
    ostrel::ModuleObject *const entry
        = qo::kivra::registerPage(nullptr, QT_TRANSLATE_NOOP("navigation", "Home"),
                                  QStringLiteral("panel"), QStringLiteral("home"), 0);
    entry->set(nullptr, QStringLiteral("nav"), HomePage::key(), true);
    qo::kivra::registerGroup(QStringLiteral("robot.pack"),
                             QT_TRANSLATE_NOOP("navigation", "Plugins"));
}

bool MainWindow::showPage(const QString &key)
{
    return m_center->switchTo(nullptr, key);
}

void MainWindow::refreshBadges()
{
    const QString name = m_robot.identity();
    m_name->setText(name.isEmpty() ? tr("Robot panel") : name);
    m_name->setMinimumWidth(qMin(m_name->sizeHint().width(), LongestName));
    m_connection->setReading(connectionReading(m_robot));
    m_mode->setReading(modeReading(m_robot));
    m_power->setReading(powerReading(m_robot));
    m_run->setReading(runReading(m_robot));
    // Without a link they would all say the same.
    for (StatusBadge *const badge : {m_mode, m_power, m_run})
        badge->setVisible(m_robot.controllerConnected());
}

/** Nothing is destroyed here: modules end in their own order, while the window still stands. */
void MainWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    QCoreApplication::quit();
}

} // namespace panel
