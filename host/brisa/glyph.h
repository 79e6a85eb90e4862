#pragma once

#include "hostexport.h"

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QString>

namespace brisa
{

/** The host's own pictograms: lines of one weight on a grid of 24, drawn in any colour. */
enum class Glyph {
    Home,
    Plugin,
    Settings,
    Power,
    Link,
    LinkLost,
    Play,
    Stop,
    Hand,
    Cycle,
    User,
    Info,
    Warning,
    Error,
    Ok,
    Close,
    Up,
    Down,
    Left,
    Right,
    FullScreen,
    List,
    Key,
    Folder,
    Lamp,
    Target,
    Variable,
    Arm ///< the last one
};

/** The pictogram, size pixels square. ratio: physical pixels per pixel. */
HOST_EXPORT QPixmap glyphPixmap(Glyph glyph, const QColor &colour, int size = 24, qreal ratio = 1);
HOST_EXPORT QIcon glyphIcon(Glyph glyph, const QColor &colour, const QColor &disabled);

/** The pictogram of that lower-case name ("home", "fullscreen"); false for an unknown name. */
HOST_EXPORT bool glyphFromName(const QString &name, Glyph *glyph);

/** The first letter of a title on a rounded tile, for what has no picture of its own. */
HOST_EXPORT QPixmap letterPixmap(const QString &title, const QColor &letter, const QColor &tile,
                                 int size = 24, qreal ratio = 1);

} // namespace brisa
