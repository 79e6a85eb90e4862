#include "runkeys.h"

#include "robotstate.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <brisa/glyph.h>
#include <brisa/thememanager.h>
#include <brisa/translated.h>
#include <ostrel/moduleobject.h>

namespace panel
{

using brisa::ThemeManager;
namespace metrics = brisa::metrics;

namespace
{

ostrel::ModuleObject *waitingNode()
{
    return m(QStringLiteral("brisa.r.zeplet.waiting"));
}

QPushButton *makeKey(const QString &wish, QWidget *parent)
{
    auto *const key = new QPushButton(parent);
    key->setIconSize({metrics::Icon, metrics::Icon});
    key->setMinimumHeight(metrics::Touch);
    key->setFocusPolicy(Qt::NoFocus); // no press by a space bar that was meant for something else
    QObject::connect(key, &QPushButton::clicked, key,
                     [wish] { m(QStringLiteral("brisa.r.operator"))->set(nullptr, wish); });
    return key;
}

/** role: of the style sheet; empty for a key that is not the one to press now. */
void setLooks(QPushButton *key, brisa::Glyph glyph, const QString &role)
{
    const brisa::ThemeColours &colours = ThemeManager::instance()->colours();
    const QColor line = role.isEmpty() ? colours.text : colours.onAccent;
    key->setProperty("role", role);
    key->setIcon(brisa::glyphIcon(glyph, line, colours.disabledText));
}

} // namespace

RunKeys::RunKeys(const RobotState &robot, QWidget *parent)
    : QWidget(parent)
    , m_robot(robot)
    , m_start(makeKey(QStringLiteral("start"), this))
    , m_stop(makeKey(QStringLiteral("stop"), this))
{
    m_start->setObjectName(QStringLiteral("startProgram"));
    m_stop->setObjectName(QStringLiteral("stopProgram"));
    brisa::translated(this, [this] {
        m_start->setText(tr("Start"));
        m_stop->setText(tr("Stop"));
    });
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::Grid);
    row->addWidget(m_start);
    row->addWidget(m_stop);
    connect(&robot, &RobotState::changed, this, &RunKeys::refresh);
    connect(waitingNode(), &ostrel::ModuleObject::changed, this, &RunKeys::refresh);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this, &RunKeys::refresh);
    refresh();
}

void RunKeys::refresh()
{
    const bool connected = m_robot.controllerConnected();
    const bool running = connected && m_robot.running().value_or(false);
    const bool ready = connected && !running && m_robot.powered().value_or(false)
        && waitingNode()->getStr(QString()).isEmpty();
    setLooks(m_start, brisa::Glyph::Play, ready ? QStringLiteral("primary") : QString());
    setLooks(m_stop, brisa::Glyph::Stop, running ? QStringLiteral("danger") : QString());
    // Set anew, it takes up the roles.
    setStyleSheet(QString());
    setStyleSheet(ThemeManager::instance()->styleSheet());
}

} // namespace panel
