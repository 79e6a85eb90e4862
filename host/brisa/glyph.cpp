#include "brisa/glyph.h"

#include "brisa/thememanager.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>

namespace brisa
{

namespace
{

QPainterPath lines(std::initializer_list<QPointF> points, bool closed = false)
{
    QPainterPath path(*points.begin());
    for (const QPointF &point : points)
        path.lineTo(point);
    if (closed)
        path.closeSubpath();
    return path;
}

QPainterPath join(std::initializer_list<QPainterPath> parts)
{
    QPainterPath path;
    for (const QPainterPath &part : parts)
        path.addPath(part);
    return path;
}

QPainterPath circle(QPointF centre, qreal radius)
{
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    return path;
}

QPainterPath arc(QPointF centre, qreal radius, qreal start, qreal span)
{
    const QRectF box(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
    QPainterPath path;
    path.arcMoveTo(box, start);
    path.arcTo(box, start, span);
    return path;
}

QPainterPath roundedBox(const QRectF &box, qreal radius)
{
    QPainterPath path;
    path.addRoundedRect(box, radius, radius);
    return path;
}

QPainterPath markedPath(Glyph glyph)
{
    switch (glyph) {
    case Glyph::Info:
        return join(
            {circle({12, 12}, 9), lines({{12, 11}, {12, 16.5}}), lines({{12, 7.4}, {12, 7.6}})});
    case Glyph::Warning:
        return join({lines({{12, 3.5}, {21.5, 20}, {2.5, 20}}, true), lines({{12, 10}, {12, 14.5}}),
                     lines({{12, 17.2}, {12, 17.4}})});
    case Glyph::Error:
        return join({circle({12, 12}, 9), lines({{8.8, 8.8}, {15.2, 15.2}}),
                     lines({{15.2, 8.8}, {8.8, 15.2}})});
    case Glyph::Ok:
        return join({circle({12, 12}, 9), lines({{8, 12.4}, {11, 15.2}, {16.2, 9.4}})});
    case Glyph::Close:
        return join({lines({{6, 6}, {18, 18}}), lines({{18, 6}, {6, 18}})});
    case Glyph::Up:
        return lines({{5.5, 15}, {12, 8.5}, {18.5, 15}});
    case Glyph::Down:
        return lines({{5.5, 9}, {12, 15.5}, {18.5, 9}});
    case Glyph::Left:
        return lines({{15, 5.5}, {8.5, 12}, {15, 18.5}});
    case Glyph::Right:
        return lines({{9, 5.5}, {15.5, 12}, {9, 18.5}});
    case Glyph::FullScreen:
        return join({lines({{4, 9}, {4, 4}, {9, 4}}), lines({{15, 4}, {20, 4}, {20, 9}}),
                     lines({{20, 15}, {20, 20}, {15, 20}}), lines({{9, 20}, {4, 20}, {4, 15}})});
    case Glyph::List:
        return join({lines({{4, 6.5}, {20, 6.5}}), lines({{4, 12}, {20, 12}}),
                     lines({{4, 17.5}, {20, 17.5}})});
    default:
        return {};
    }
}

QPainterPath gearPath()
{
    QPainterPath path = join({circle({12, 12}, 3), circle({12, 12}, 6.5)});
    for (int tooth = 0; tooth < 8; ++tooth) {
        const QTransform turn = QTransform().translate(12, 12).rotate(45 * tooth);
        path.addPath(turn.map(lines({{0, -6.5}, {0, -9.5}})));
    }
    return path;
}

QPainterPath glyphPath(Glyph glyph)
{
    switch (glyph) {
    case Glyph::Home:
        return join({lines({{3, 11.5}, {12, 4}, {21, 11.5}}),
                     lines({{5.5, 10}, {5.5, 20}, {18.5, 20}, {18.5, 10}}),
                     lines({{10, 20}, {10, 14}, {14, 14}, {14, 20}})});
    case Glyph::Plugin:
        return join({roundedBox({4, 4, 6.5, 6.5}, 1.5), roundedBox({4, 13.5, 6.5, 6.5}, 1.5),
                     roundedBox({13.5, 13.5, 6.5, 6.5}, 1.5), lines({{16.75, 4}, {16.75, 10.5}}),
                     lines({{13.5, 7.25}, {20, 7.25}})});
    case Glyph::Settings:
        return gearPath();
    case Glyph::Power:
        return join({arc({12, 13}, 8, 125, 290), lines({{12, 3.5}, {12, 12}})});
    case Glyph::Link:
        return join({roundedBox({3, 8.5, 10, 7}, 3.5), roundedBox({11, 8.5, 10, 7}, 3.5)});
    case Glyph::LinkLost:
        return join({roundedBox({2, 8.5, 8, 7}, 3.5), roundedBox({14, 8.5, 8, 7}, 3.5),
                     lines({{15, 3.5}, {9, 20.5}})});
    case Glyph::Play:
        return lines({{7, 4.5}, {19.5, 12}, {7, 19.5}}, true);
    case Glyph::Stop:
        return roundedBox({5.5, 5.5, 13, 13}, 1.5);
    case Glyph::Hand:
        return join({circle({12, 6.5}, 3.5), lines({{12, 10}, {12, 16}}),
                     roundedBox({5, 16, 14, 4.5}, 1.5)});
    case Glyph::Cycle:
        return join({arc({12, 12}, 8, 60, 280), lines({{16.4, 1.6}, {16, 5.2}, {19.6, 5.6}})});
    case Glyph::User:
        return join({circle({12, 8}, 4), arc({12, 21}, 8, 0, 180)});
    case Glyph::Folder:
        return lines({{3, 19}, {3, 5.5}, {9, 5.5}, {11.5, 8.5}, {21, 8.5}, {21, 19}}, true);
    case Glyph::Lamp:
        return join({arc({12, 10}, 6.5, -60, 300),
                     lines({{8.75, 15.6}, {8.75, 18}, {15.25, 18}, {15.25, 15.6}}),
                     lines({{10, 21}, {14, 21}})});
    case Glyph::Target:
        return join({circle({12, 12}, 6.5), circle({12, 12}, 1), lines({{12, 2}, {12, 7}}),
                     lines({{12, 17}, {12, 22}}), lines({{2, 12}, {7, 12}}),
                     lines({{17, 12}, {22, 12}})});
    case Glyph::Variable:
        return join({lines({{8, 4}, {5, 4}, {5, 20}, {8, 20}}),
                     lines({{16, 4}, {19, 4}, {19, 20}, {16, 20}}), lines({{9.5, 9}, {14.5, 15}}),
                     lines({{14.5, 9}, {9.5, 15}})});
    case Glyph::Arm:
        return join({lines({{4, 21}, {12, 21}}), lines({{8, 21}, {8, 17}}), circle({8, 14.5}, 2.5),
                     lines({{9.2, 12.3}, {12.3, 7}}), circle({13.5, 5}, 2.3),
                     lines({{15.6, 6}, {20, 9.5}, {20, 12.5}})});
    case Glyph::Key:
        return join({roundedBox({3.5, 5.5, 17, 13}, 2.5), lines({{8, 14.5}, {16, 14.5}})});
    default:
        return markedPath(glyph);
    }
}

QPixmap blankPixmap(int size, qreal ratio)
{
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

} // namespace

QPixmap glyphPixmap(Glyph glyph, const QColor &colour, int size, qreal ratio)
{
    QPixmap pixmap = blankPixmap(size, ratio);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 24.0, size / 24.0);
    painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(glyphPath(glyph));
    return pixmap;
}

QIcon glyphIcon(Glyph glyph, const QColor &colour, const QColor &disabled)
{
    QIcon icon(glyphPixmap(glyph, colour));
    icon.addPixmap(glyphPixmap(glyph, disabled), QIcon::Disabled);
    return icon;
}

bool glyphFromName(const QString &name, Glyph *glyph)
{
    static const QHash<QString, Glyph> names {{"home", Glyph::Home},
                                              {"plugin", Glyph::Plugin},
                                              {"settings", Glyph::Settings},
                                              {"power", Glyph::Power},
                                              {"link", Glyph::Link},
                                              {"linklost", Glyph::LinkLost},
                                              {"play", Glyph::Play},
                                              {"stop", Glyph::Stop},
                                              {"hand", Glyph::Hand},
                                              {"cycle", Glyph::Cycle},
                                              {"user", Glyph::User},
                                              {"info", Glyph::Info},
                                              {"warning", Glyph::Warning},
                                              {"error", Glyph::Error},
                                              {"ok", Glyph::Ok},
                                              {"fullscreen", Glyph::FullScreen},
                                              {"list", Glyph::List},
                                              {"key", Glyph::Key},
                                              {"folder", Glyph::Folder},
                                              {"lamp", Glyph::Lamp},
                                              {"target", Glyph::Target},
                                              {"variable", Glyph::Variable},
                                              {"arm", Glyph::Arm}};
    const auto it = names.constFind(name);
    if (it == names.constEnd())
        return false;
    *glyph = it.value();
    return true;
}

QPixmap letterPixmap(const QString &title, const QColor &letter, const QColor &tile, int size,
                     qreal ratio)
{
    QPixmap pixmap = blankPixmap(size, ratio);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tile);
    painter.drawRoundedRect(QRectF(0, 0, size, size), metrics::Radius, metrics::Radius);
    painter.setPen(letter);
    painter.setFont(ThemeManager::font(TextSize::Body, true));
    painter.drawText(QRect(0, 0, size, size), Qt::AlignCenter, title.trimmed().left(1).toUpper());
    return pixmap;
}

} // namespace brisa
