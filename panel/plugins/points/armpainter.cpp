#include "armpainter.h"

#include "kit/marks.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>
#include <algorithm>
#include <brisa/glyph.h>
#include <brisa/thememanager.h>
#include <functional>
#include <limits>

using brisa::ThemeManager;
namespace metrics = brisa::metrics;

namespace
{

constexpr float GridStep = 100; // mm
constexpr int GridLines = 12; // to each side of the base
constexpr int StrongLine = 5; // each fifth line stands out
constexpr double BaseWidth = 130; // mm
constexpr float BaseRound = 60; // mm
constexpr double WristWidth = 64; // mm
constexpr float ToolAxis = 130; // mm
constexpr double LabelPadding = 7;
constexpr int MostLabels = 12;
constexpr double MarkSize = 7;

QColor mixed(const QColor &a, const QColor &b, double part)
{
    return QColor::fromRgbF(a.redF() + (b.redF() - a.redF()) * part,
                            a.greenF() + (b.greenF() - a.greenF()) * part,
                            a.blueF() + (b.blueF() - a.blueF()) * part);
}

QColor faded(QColor colour, double alpha)
{
    colour.setAlphaF(alpha);
    return colour;
}

QVector3D onFloor(const QVector3D &place)
{
    return {place.x(), place.y(), 0};
}

} // namespace

ArmPainter::ArmPainter(QPainter *painter, const ArmCamera &camera, const QRect &area)
    : m_painter(painter)
    , m_camera(camera)
    , m_area(area)
    , m_colours(currentPalette())
{
}

ArmPainter::Palette ArmPainter::currentPalette()
{
    const ThemeManager *const theme = ThemeManager::instance();
    const brisa::ThemeColours &c = theme->colours();
    const bool dark = theme->theme() == brisa::Theme::Dark;
    Palette p;
    p.floor = mixed(c.surface, c.border, dark ? 0.35 : 0.4);
    p.line = mixed(c.surface, c.border, dark ? 0.65 : 0.6);
    p.strong = mixed(c.surface, c.mutedText, dark ? 0.45 : 0.4);
    p.body = dark ? QColor(0x8e9cab) : QColor(0xc3ccd6);
    p.edge = dark ? QColor(0x45525f) : QColor(0x75828f);
    p.light = dark ? QColor(0xc4ced8) : QColor(0xf7f9fb);
    p.joint = dark ? QColor(0x2c3844) : QColor(0x3d4a57);
    p.jointLight = dark ? QColor(0x6b7a89) : QColor(0x8491a0);
    p.mark = c.mutedText;
    p.chosen = c.accent;
    p.x = c.error;
    p.y = c.ok;
    p.z = dark ? QColor(0x6fb1ff) : QColor(0x1f6fd0);
    return p;
}

// The grid fades with its distance from the base, so that it has no edge.
void ArmPainter::drawGround()
{
    constexpr float reach = GridLines * GridStep;
    const bool level = m_camera.pitch() < 1;
    if (level) {
        drawLine({-reach, 0, 0}, {reach, 0, 0}, m_colours.strong, 1.5);
        return;
    }
    const QPointF middle = m_camera.project({0, 0, 0});
    QRadialGradient fade(middle, reach * m_camera.scale());
    for (const bool strong : {false, true}) {
        const QColor colour = strong ? m_colours.strong : m_colours.line;
        fade.setColorAt(0, colour);
        fade.setColorAt(0.55, faded(colour, 0.7));
        fade.setColorAt(1, faded(colour, 0));
        m_painter->setPen(QPen(fade, 1));
        for (int i = -GridLines; i <= GridLines; ++i) {
            if ((i % StrongLine == 0) != strong)
                continue;
            const float at = float(i) * GridStep;
            m_painter->drawLine(m_camera.project({at, -reach, 0}),
                                m_camera.project({at, reach, 0}));
            m_painter->drawLine(m_camera.project({-reach, at, 0}),
                                m_camera.project({reach, at, 0}));
        }
    }
    drawLine({0, 0, 0}, {3 * GridStep, 0, 0}, faded(m_colours.x, 0.8), 2);
    drawLine({0, 0, 0}, {0, 3 * GridStep, 0}, faded(m_colours.y, 0.8), 2);
}

void ArmPainter::drawShadow(const QVector<QVector3D> &skeleton)
{
    if (skeleton.size() < 2 || m_camera.pitch() < 1)
        return;
    QPainterPath path(m_camera.project(onFloor(skeleton.first())));
    for (const QVector3D &place : skeleton)
        path.lineTo(m_camera.project(onFloor(place)));
    const double flat = qSin(qDegreesToRadians(m_camera.pitch()));
    const double thick = (BaseWidth + WristWidth) / 2 * m_camera.scale() * (0.45 + 0.55 * flat);
    QPainterPathStroker stroker;
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    stroker.setWidth(thick);
    QPainterPath shadow = stroker.createStroke(path);
    shadow.setFillRule(Qt::WindingFill);
    m_painter->fillPath(shadow.simplified(), QColor(0, 0, 0, 26));
}

void ArmPainter::drawDropLines(const QVector<PlaceMark> &marks)
{
    for (const PlaceMark &mark : marks) {
        const QColor colour = mark.chosen ? m_colours.chosen : faded(m_colours.mark, 0.5);
        m_painter->setPen(QPen(colour, mark.chosen ? 1.5 : 1, Qt::DotLine));
        const QPointF foot = m_camera.project(onFloor(mark.place));
        m_painter->drawLine(m_camera.project(mark.place), foot);
        const double flat = qSin(qDegreesToRadians(m_camera.pitch()));
        m_painter->setPen(Qt::NoPen);
        m_painter->setBrush(faded(colour, 0.45));
        m_painter->drawEllipse(foot, 3.5, qMax(1.0, 3.5 * flat));
    }
}

void ArmPainter::drawArm(const QVector<QVector3D> &skeleton, const QVector<PlaceMark> &marks)
{
    struct Part {
        double depth;
        std::function<void()> draw;
    };
    QVector<Part> parts;
    const int links = skeleton.size() - 1;
    for (int i = 0; i < links; ++i) {
        QVector3D from = skeleton.at(i);
        const QVector3D to = skeleton.at(i + 1);
        if (i == 0) // its round end stands on the floor
            from += (to - from).normalized() * qMin(BaseRound, (to - from).length() / 2);
        const double near = m_camera.depth((from + to) / 2);
        if ((to - from).length() > 1)
            parts.append({near, [=] { drawLink(from, to, width(i, links), width(i + 1, links)); }});
        if (i > 0)
            parts.append({m_camera.depth(from) + BaseWidth / 4,
                          [=] { drawJoint(from, width(i, links) * 0.5); }});
    }
    for (const PlaceMark &mark : marks) {
        const double near = mark.chosen ? std::numeric_limits<double>::max() // never hidden
                                        : m_camera.depth(mark.place);
        parts.append({near, [=] { drawMark(mark); }});
    }
    std::stable_sort(parts.begin(), parts.end(),
                     [](const Part &a, const Part &b) { return a.depth < b.depth; });
    if (links > 0)
        drawPedestal();
    for (const Part &part : qAsConst(parts))
        part.draw();
}

/** Pixels: an arm gets thinner towards its wrist. */
double ArmPainter::width(int link, int links) const
{
    const double part = double(link) / qMax(1, links);
    return qMax(5.0, (BaseWidth + (WristWidth - BaseWidth) * part) * m_camera.scale());
}

void ArmPainter::drawLine(const QVector3D &from, const QVector3D &to, const QColor &colour,
                          double width)
{
    m_painter->setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap));
    m_painter->drawLine(m_camera.project(from), m_camera.project(to));
}

// A round bar that gets thinner, lit from the upper left.
void ArmPainter::drawLink(const QVector3D &from, const QVector3D &to, double fromWidth,
                          double toWidth)
{
    const QPointF a = m_camera.project(from);
    const QPointF b = m_camera.project(to);
    const QLineF axis(a, b);
    QPainterPath bar;
    bar.setFillRule(Qt::WindingFill);
    bar.addEllipse(a, fromWidth / 2, fromWidth / 2);
    bar.addEllipse(b, toWidth / 2, toWidth / 2);
    QPointF side(1, 0);
    if (axis.length() > 1) {
        side = QPointF(-axis.dy(), axis.dx()) / axis.length();
        bar.addPolygon(QPolygonF({a + side * fromWidth / 2, b + side * toWidth / 2,
                                  b - side * toWidth / 2, a - side * fromWidth / 2}));
        bar.closeSubpath();
    }
    if (QPointF::dotProduct(side, {1, 1}) < 0)
        side = -side;
    const QPointF middle = (a + b) / 2;
    const double half = qMax(fromWidth, toWidth) / 2;
    QLinearGradient round(middle - side * half, middle + side * half);
    round.setColorAt(0, mixed(m_colours.body, m_colours.light, 0.5));
    round.setColorAt(0.3, m_colours.light);
    round.setColorAt(0.65, m_colours.body);
    round.setColorAt(1, mixed(m_colours.body, m_colours.edge, 0.6));
    m_painter->setPen(QPen(m_colours.edge, 1));
    m_painter->setBrush(round);
    m_painter->drawPath(bar.simplified());
}

void ArmPainter::drawJoint(const QVector3D &place, double radius)
{
    const QPointF at = m_camera.project(place);
    QRadialGradient ball(at - QPointF(radius, radius) * 0.35, radius * 1.5);
    ball.setColorAt(0, m_colours.jointLight);
    ball.setColorAt(1, m_colours.joint);
    m_painter->setPen(QPen(mixed(m_colours.joint, Qt::black, 0.3), 1));
    m_painter->setBrush(ball);
    m_painter->drawEllipse(at, radius, radius);
    m_painter->setPen(Qt::NoPen);
    m_painter->setBrush(m_colours.light);
    m_painter->drawEllipse(at, radius * 0.28, radius * 0.28);
}

void ArmPainter::drawMark(const PlaceMark &mark)
{
    const QPointF at = m_camera.project(mark.place);
    m_painter->setPen(Qt::NoPen);
    if (mark.chosen) {
        m_painter->setBrush(faded(m_colours.chosen, 0.22));
        m_painter->drawEllipse(at, 13, 13);
    }
    const QColor ring = ThemeManager::instance()->colours().surface;
    m_painter->setPen(QPen(ring, 2));
    m_painter->setBrush(mark.chosen ? m_colours.chosen : m_colours.mark);
    const double radius = mark.chosen ? 7 : 5;
    m_painter->drawEllipse(at, radius, radius);
}

void ArmPainter::drawPedestal()
{
    const double flat = qSin(qDegreesToRadians(m_camera.pitch()));
    const double radius = BaseWidth * 0.85 * m_camera.scale();
    const QPointF at = m_camera.project({0, 0, 0});
    m_painter->setPen(QPen(m_colours.edge, 1));
    m_painter->setBrush(m_colours.joint);
    m_painter->drawEllipse(at, radius, qMax(3.0, radius * flat));
    m_painter->setBrush(m_colours.jointLight);
    m_painter->drawEllipse(at - QPointF(0, 3), radius, qMax(3.0, radius * flat));
}

void ArmPainter::drawTool(const QVector<QVector3D> &skeleton, const QVector<QVector3D> &axes)
{
    if (skeleton.isEmpty() || axes.size() != 3)
        return;
    const QVector3D tip = skeleton.last();
    const QColor colours[] = {m_colours.x, m_colours.y, m_colours.z};
    QVector<int> order {0, 1, 2};
    std::sort(order.begin(), order.end(), [&](int a, int b) {
        return m_camera.depth(axes.at(a)) < m_camera.depth(axes.at(b));
    });
    for (const int axis : qAsConst(order)) {
        const QPointF from = m_camera.project(tip);
        const QPointF to = m_camera.project(tip + axes.at(axis) * ToolAxis);
        const QLineF shaft(from, to);
        m_painter->setPen(QPen(colours[axis], 3, Qt::SolidLine, Qt::RoundCap));
        m_painter->drawLine(shaft);
        if (shaft.length() < 8)
            continue;
        const QPointF ahead = (to - from) / shaft.length();
        const QPointF side(-ahead.y(), ahead.x());
        m_painter->setPen(Qt::NoPen);
        m_painter->setBrush(colours[axis]);
        m_painter->drawPolygon(
            QPolygonF({to + ahead * 7, to - ahead * 2 + side * 4.5, to - ahead * 2 - side * 4.5}));
    }
    m_painter->setPen(QPen(m_colours.joint, 1));
    m_painter->setBrush(m_colours.light);
    m_painter->drawEllipse(m_camera.project(tip), 4, 4);
}

void ArmPainter::drawLabels(const QVector<PlaceMark> &marks)
{
    QVector<QRectF> taken;
    for (const PlaceMark &mark : marks) {
        const QPointF at = m_camera.project(mark.place);
        taken.append(QRectF(at - QPointF(MarkSize, MarkSize), at + QPointF(MarkSize, MarkSize)));
    }
    for (const PlaceMark &mark : marks) {
        if (mark.chosen)
            drawLabel(m_camera.project(mark.place), mark.label, true, &taken);
    }
    if (marks.size() > MostLabels)
        return;
    for (const PlaceMark &mark : marks) {
        if (!mark.chosen)
            drawLabel(m_camera.project(mark.place), mark.label, false, &taken);
    }
}

/** Right of the place, or left of it; one that would hide something is left out, unless chosen. */
bool ArmPainter::drawLabel(const QPointF &at, const QString &text, bool chosen,
                           QVector<QRectF> *taken)
{
    const brisa::ThemeColours &colours = ThemeManager::instance()->colours();
    m_painter->setFont(ThemeManager::font(brisa::TextSize::Caption, chosen));
    const QFontMetricsF font(m_painter->font());
    const QString shown = font.elidedText(text, Qt::ElideRight, m_area.width() * 0.34);
    const QRectF right(at.x() + 14, at.y() - font.height() / 2 - 3,
                       font.horizontalAdvance(shown) + 2 * LabelPadding, font.height() + 6);
    const QRectF left = right.translated(-right.width() - 28, 0);
    const auto fits = [&](const QRectF &box) {
        return QRectF(m_area).contains(box)
            && std::none_of(taken->begin(), taken->end(),
                            [&](const QRectF &other) { return other.intersects(box); });
    };
    const bool toTheLeft = !fits(right) && (fits(left) || right.right() > m_area.right());
    const QRectF box = toTheLeft ? left : right;
    if (!chosen && !fits(box))
        return false;
    taken->append(box);
    m_painter->setPen(Qt::NoPen);
    m_painter->setBrush(chosen ? colours.accent : faded(colours.surface, 0.82));
    m_painter->drawRoundedRect(box, box.height() / 2, box.height() / 2);
    m_painter->setPen(chosen ? colours.onAccent : colours.mutedText);
    m_painter->drawText(box, Qt::AlignCenter | Qt::TextSingleLine, shown);
    return true;
}

void ArmPainter::drawScale()
{
    const double length = roundLength(m_area.width() * 0.28 / m_camera.scale());
    const double pixels = length * m_camera.scale();
    const double right = m_area.right() - metrics::Margin;
    const double y = m_area.bottom() - metrics::Margin;
    const brisa::ThemeColours &colours = ThemeManager::instance()->colours();
    m_painter->setPen(QPen(colours.mutedText, 2));
    m_painter->drawLine(QPointF(right - pixels, y), QPointF(right, y));
    for (const double x : {right - pixels, right})
        m_painter->drawLine(QPointF(x, y - 4), QPointF(x, y + 4));
    m_painter->setFont(ThemeManager::font(brisa::TextSize::Caption));
    m_painter->setPen(colours.mutedText);
    m_painter->drawText(QRectF(right - 200, y - 24, 200, 20), Qt::AlignRight | Qt::AlignVCenter,
                        QStringLiteral("%1 mm").arg(length));
}

void ArmPainter::drawRemark(const QString &remark)
{
    if (remark.isEmpty())
        return;
    m_painter->setFont(ThemeManager::font(brisa::TextSize::Caption));
    m_painter->setPen(ThemeManager::instance()->colours().mutedText);
    const QRectF box(m_area.left() + metrics::Margin, m_area.bottom() - 5 * metrics::Grid,
                     m_area.width() * 0.58, 5 * metrics::Grid - metrics::Grid);
    m_painter->drawText(box, Qt::AlignLeft | Qt::AlignBottom | Qt::TextWordWrap, remark);
}

void ArmPainter::drawMoving(const QString &text)
{
    const kit::Mark mark {text, kit::Tone::Warning};
    const int width = kit::markWidth(mark);
    kit::drawMark(
        m_painter,
        QRect(m_area.right() - metrics::Margin - width, metrics::Grid, width, 5 * metrics::Grid),
        mark);
}

void ArmPainter::drawEmpty(const QString &title, const QString &hint)
{
    constexpr int icon = 3 * metrics::Icon;
    const brisa::ThemeColours &colours = ThemeManager::instance()->colours();
    const QRect box = m_area.adjusted(metrics::Margin, 0, -metrics::Margin, 0);
    int y = box.center().y() - icon;
    const qreal ratio = m_painter->device()->devicePixelRatioF();
    m_painter->fillRect(m_area, faded(colours.surface, 0.75)); // the floor is only hinted at
    m_painter->drawPixmap(box.center().x() - icon / 2, y,
                          brisa::glyphPixmap(brisa::Glyph::Arm, colours.mutedText, icon, ratio));
    y += icon + 2 * metrics::Margin;
    m_painter->setFont(ThemeManager::font(brisa::TextSize::Title, true));
    m_painter->setPen(colours.text);
    m_painter->drawText(QRect(box.x(), y, box.width(), 3 * metrics::Grid), Qt::AlignHCenter, title);
    m_painter->setFont(ThemeManager::font(brisa::TextSize::Body));
    m_painter->setPen(colours.mutedText);
    m_painter->drawText(QRect(box.x(), y + 4 * metrics::Grid, box.width(), 6 * metrics::Grid),
                        static_cast<int>(Qt::AlignHCenter) | Qt::TextWordWrap, hint);
}
