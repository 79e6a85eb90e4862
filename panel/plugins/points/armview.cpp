#include "armview.h"

#include "armpainter.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTabBar>
#include <QVBoxLayout>
#include <QtMath>
#include <brisa/thememanager.h>
#include <brisa/translated.h>

using brisa::ThemeManager;
namespace metrics = brisa::metrics;

namespace
{

enum View { Space, Side, Top };

constexpr double SpaceYaw = -52;
constexpr double SpacePitch = 20;
constexpr double DegreesPerPixel = 0.4;
constexpr int FrameTime = 16; // ms
constexpr double GlideTime = 45; // ms: the controller tells a pose each 50
constexpr float Settled = 0.2F; // mm
constexpr float Clearance = 80; // mm around what is to be seen
const Box SmallestBox {{-300, -300, 0}, {500, 300, 700}};

void grow(Box *box, const QVector3D &place)
{
    box->include(place + QVector3D(Clearance, Clearance, Clearance));
    box->include(place - QVector3D(Clearance, Clearance, 0));
}

/** Moves from a part of the way towards to. True while it is still on the way. */
bool glide(QVector3D *from, const QVector3D &to, float part)
{
    *from += (to - *from) * part;
    if ((to - *from).lengthSquared() > Settled * Settled)
        return true;
    *from = to;
    return false;
}

bool glide(QVector<QVector3D> *from, const QVector<QVector3D> &to, float part)
{
    if (from->size() != to.size()) {
        *from = to;
        return false;
    }
    bool moving = false;
    for (int i = 0; i < to.size(); ++i)
        moving |= glide(&(*from)[i], to.at(i), part);
    return moving;
}

} // namespace

ArmView::ArmView(QWidget *parent)
    : QWidget(parent)
    , m_views(new QTabBar(this))
    , m_yaw(SpaceYaw)
    , m_pitch(SpacePitch)
{
    m_views->setObjectName(QStringLiteral("armViews"));
    m_views->setExpanding(false);
    m_views->setDrawBase(false);
    m_views->setFocusPolicy(Qt::NoFocus);
    for (int view = Space; view <= Top; ++view)
        m_views->addTab(QString());
    brisa::translated(this, [this] {
        m_views->setTabText(Space, tr("3D"));
        m_views->setTabText(Side, tr("Side"));
        m_views->setTabText(Top, tr("Top"));
        update();
    });
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(metrics::Grid, 0, metrics::Grid, 0);
    column->addWidget(m_views, 0, Qt::AlignLeft);
    column->addStretch(1);
    m_frames.setInterval(FrameTime);
    m_frames.setTimerType(Qt::PreciseTimer);
    connect(&m_frames, &QTimer::timeout, this, &ArmView::step);
    connect(m_views, &QTabBar::currentChanged, this, &ArmView::turn);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this,
            QOverload<>::of(&QWidget::update));
    setMinimumSize(28 * metrics::Grid, 26 * metrics::Grid);
}

void ArmView::setState(const ArmState &state)
{
    m_state = state;
    m_aim.skeleton = state.live ? state.skeleton : QVector<QVector3D>();
    m_aim.tool = state.pose.isEmpty()
        ? QVector<QVector3D>()
        : frameAxes(state.pose.at(3), state.pose.at(4), state.pose.at(5));
    aim();
}

void ArmView::setMarks(const QVector<PlaceMark> &marks, const QString &remark)
{
    m_marks = marks;
    m_remark = remark;
    m_aim.box = SmallestBox;
    aim();
}

// The box only grows while the arm moves: a picture that breathes can't be read.
void ArmView::aim()
{
    for (const QVector3D &place : qAsConst(m_aim.skeleton))
        grow(&m_aim.box, place);
    for (const PlaceMark &mark : qAsConst(m_marks))
        grow(&m_aim.box, mark.place);
    if (!isVisible()) {
        m_shown = m_aim;
        return;
    }
    if (!m_frames.isActive()) {
        m_clock.start();
        m_frames.start();
    }
    update();
}

void ArmView::step()
{
    const auto part = float(1 - std::exp(-double(qMax<qint64>(1, m_clock.restart())) / GlideTime));
    bool moving = glide(&m_shown.skeleton, m_aim.skeleton, part);
    moving |= glide(&m_shown.box.least, m_aim.box.least, part);
    moving |= glide(&m_shown.box.most, m_aim.box.most, part);
    // Directions are short: their steps are no millimetres.
    if (m_shown.tool.size() == m_aim.tool.size() && moving) {
        for (int i = 0; i < m_aim.tool.size(); ++i)
            m_shown.tool[i] += (m_aim.tool.at(i) - m_shown.tool.at(i)) * part;
    } else {
        m_shown.tool = m_aim.tool;
    }
    if (!moving)
        m_frames.stop();
    update();
}

void ArmView::turn()
{
    m_yaw = m_views->currentIndex() == Space ? SpaceYaw : -90;
    m_pitch = m_views->currentIndex() == Space ? SpacePitch
        : m_views->currentIndex() == Side      ? 0
                                               : 90;
    update();
}

/** Where the cell is shown. In space only little of it reaches as high as the tabs. */
QRectF ArmView::stage() const
{
    const int top = m_views->currentIndex() == Space ? m_views->height() / 2 : m_views->height();
    return QRectF(rect()).adjusted(metrics::Margin, top, -metrics::Margin, -5 * metrics::Grid);
}

void ArmView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    ArmCamera camera;
    camera.turnTo(m_yaw, m_pitch);
    camera.fit(m_shown.box, stage());
    ArmPainter arm(&painter, camera, rect());
    if (!m_state.live) {
        arm.drawGround();
        return arm.drawEmpty(tr("No link to the controller"),
                             tr("The robot's pose appears when it is connected."));
    }
    arm.drawGround();
    arm.drawShadow(m_shown.skeleton);
    arm.drawDropLines(m_marks);
    arm.drawArm(m_shown.skeleton, m_marks);
    arm.drawTool(m_shown.skeleton, m_shown.tool);
    arm.drawLabels(m_marks);
    arm.drawScale();
    arm.drawRemark(m_shown.skeleton.isEmpty() ? tr("The controller does not tell the arm's pose.")
                                              : m_remark);
    if (m_state.moving)
        arm.drawMoving(tr("Moving"));
}

// What moved while nobody looked is no movement to show.
void ArmView::showEvent(QShowEvent *event)
{
    m_shown = m_aim;
    QWidget::showEvent(event);
}

void ArmView::hideEvent(QHideEvent *event)
{
    m_frames.stop();
    QWidget::hideEvent(event);
}

void ArmView::mousePressEvent(QMouseEvent *event)
{
    m_grip = event->pos();
}

void ArmView::mouseMoveEvent(QMouseEvent *event)
{
    if (m_views->currentIndex() != Space)
        return;
    const QPoint way = event->pos() - m_grip;
    m_grip = event->pos();
    m_yaw -= way.x() * DegreesPerPixel;
    m_pitch = qBound(0.0, m_pitch + way.y() * DegreesPerPixel, 85.0);
    update();
}

void ArmView::mouseDoubleClickEvent(QMouseEvent *)
{
    turn();
}
