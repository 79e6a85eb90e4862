#include "posecard.h"

#include <QLocale>
#include <QPainter>
#include <brisa/thememanager.h>

using brisa::ThemeManager;
namespace metrics = brisa::metrics;

namespace
{

constexpr int LineHeight = 22;
constexpr int PoseLines = 2;
constexpr int AxisLines = 4; // of two axes each: seven at most
constexpr int NameWidth = 26;
constexpr int NumberWidth = 58;
constexpr int Track = 6;
constexpr double NearLimit = 0.05; // of the axis' range

QString number(double value)
{
    const bool none = qAbs(value) < 0.05; // no "-0.0"
    return QLocale::c().toString(none ? 0.0 : value, 'f', 1);
}

} // namespace

PoseCard::PoseCard(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this,
            QOverload<>::of(&QWidget::update));
}

void PoseCard::setState(const ArmState &state)
{
    const bool grows = (state.joints.size() > 6) != (m_state.joints.size() > 6);
    m_state = state;
    if (grows)
        updateGeometry();
    update();
}

QSize PoseCard::sizeHint() const
{
    const int lines = PoseLines + (m_state.joints.size() > 6 ? AxisLines : AxisLines - 1);
    return {28 * metrics::Grid, lines * LineHeight + 2 * metrics::Grid + metrics::Grid};
}

QSize PoseCard::minimumSizeHint() const
{
    return sizeHint();
}

void PoseCard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(ThemeManager::font(brisa::TextSize::Caption));
    drawPose(&painter);
    const int axes = m_state.live && !m_state.joints.isEmpty() ? m_state.joints.size() : 6;
    const int rows = (axes + 1) / 2;
    const int column = (width() - 3 * metrics::Margin) / 2;
    const int top = metrics::Grid + PoseLines * LineHeight + metrics::Grid;
    for (int i = 0; i < axes; ++i)
        drawAxis(&painter, i,
                 QRect(metrics::Margin + (i / rows) * (column + metrics::Margin),
                       top + (i % rows) * LineHeight, column, LineHeight));
}

void PoseCard::drawPose(QPainter *painter)
{
    static const char *const names[] = {"X", "Y", "Z", "A", "B", "C"};
    const brisa::ThemeColours &colours = ThemeManager::instance()->colours();
    painter->setPen(colours.border);
    painter->drawLine(metrics::Margin, 0, width() - metrics::Margin, 0);
    const int column = (width() - 2 * metrics::Margin) / 3;
    for (int i = 0; i < 6; ++i) {
        const QRect box(metrics::Margin + (i % 3) * column, metrics::Grid + (i / 3) * LineHeight,
                        column - metrics::Grid, LineHeight);
        painter->setPen(colours.mutedText);
        painter->drawText(box, Qt::AlignLeft | Qt::AlignVCenter, QLatin1String(names[i]));
        painter->setPen(colours.text);
        const bool known = m_state.live && !m_state.pose.isEmpty();
        const QString unit = i < 3 ? QStringLiteral(" mm") : QStringLiteral("°");
        painter->drawText(box.adjusted(14, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                          known ? number(m_state.pose.at(i)) + unit : QStringLiteral("–"));
    }
}

// The mark tells where within its limits the axis is.
void PoseCard::drawAxis(QPainter *painter, int axis, const QRect &box)
{
    const brisa::ThemeColours &colours = ThemeManager::instance()->colours();
    painter->setPen(colours.mutedText);
    painter->drawText(box, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("J%1").arg(axis + 1));
    const bool known = m_state.live && axis < m_state.joints.size();
    painter->setPen(colours.text);
    painter->drawText(box, Qt::AlignRight | Qt::AlignVCenter,
                      known ? number(m_state.joints.at(axis)) + QStringLiteral("°")
                            : QStringLiteral("–"));
    const QRectF track(box.x() + NameWidth, box.center().y() - Track / 2 + 1,
                       box.width() - NameWidth - NumberWidth, Track);
    painter->setPen(Qt::NoPen);
    painter->setBrush(colours.border);
    painter->drawRoundedRect(track, Track / 2.0, Track / 2.0);
    if (!known || axis >= m_state.limits.size())
        return;
    const auto [least, most] = m_state.limits.at(axis);
    if (!(most > least))
        return;
    const double part = qBound(0.0, (m_state.joints.at(axis) - least) / (most - least), 1.0);
    const bool near = part < NearLimit || part > 1 - NearLimit;
    painter->setBrush(near ? colours.warning : colours.accent);
    painter->drawEllipse(QPointF(track.x() + part * track.width(), track.center().y()), Track - 0.5,
                         Track - 0.5);
}
