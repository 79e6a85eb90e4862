#pragma once

#include "hostexport.h"

#include <QColor>
#include <QFont>
#include <QObject>
#include <QPalette>
#include <QString>

namespace brisa
{

/** Lengths in device independent pixels on a grid of 8. */
namespace metrics
{
constexpr int Grid = 8; ///< what distances are multiples of
constexpr int Margin = 16; ///< between a surface's edge and its content
constexpr int Touch = 56; ///< what a finger hits; 9 mm on a 10.1 inch screen of 1280 x 800 are 53
constexpr int Radius = 6; ///< of a surface's corners
constexpr int Icon = 24; ///< a glyph's side
} // namespace metrics

/** The five sizes of type, in pixels. */
enum class TextSize { Caption = 13, Body = 15, Title = 18, Heading = 24, Display = 30 };

/** The looks that an operator chooses from. */
enum class Theme { Light, Dark };

/** One accent, neutral surfaces, and three colours that mean something. */
struct ThemeColours {
    QColor window; ///< behind the surfaces
    QColor surface; ///< cards and bars
    QColor raised; ///< controls on a surface
    QColor border; ///< lines between and around surfaces
    QColor text; ///< running text
    QColor mutedText; ///< captions and hints
    QColor disabledText; ///< text of what can't be used now
    QColor accent; ///< what a person acts on
    QColor onAccent; ///< text on the accent
    QColor accentSoft; ///< selection
    QColor ok; ///< all is well
    QColor okSoft; ///< its background
    QColor warning; ///< needs attention
    QColor warningSoft; ///< its background
    QColor error; ///< failed, or dangerous
    QColor errorSoft; ///< its background
};

/**
 * The panel's looks: colours, type and style sheet of the current theme. GUI thread. The first one
 * alive is instance().
 */
class HOST_EXPORT ThemeManager : public QObject
{
    Q_OBJECT

public:
    /** Light at first. Belongs to the parent, if there is one. */
    explicit ThemeManager(QObject *parent = nullptr);
    ~ThemeManager() override;

    /** The host's theme manager, made on first use. Never null. */
    static ThemeManager *instance();

    /** The current theme. */
    Theme theme() const;
    /** Changes the looks of what follows themeChanged(), and of the application after
     *  applyToApplication(). Nothing happens where the theme is the current one. */
    void setTheme(Theme theme);
    /** "light" or "dark"; false, with nothing changed, for another name. */
    bool setTheme(const QString &name);
    /** The current theme's name: "light" or "dark". */
    QString themeName() const;

    /** The current theme's colours; they change with it. */
    const ThemeColours &colours() const;
    /** The colour of a message level: "warning", "error", or any other for plain information. */
    QColor levelColour(const QString &level) const;
    /** The soft background of a message level. */
    QColor levelBackground(const QString &level) const;
    /** The colours as Qt's own widgets take them. */
    QPalette palette() const;
    /** The panel's font in one of its sizes. */
    static QFont font(TextSize size, bool bold = false);
    /** A font by its name: "default" is that of running text, and so is any unknown one. */
    static QFont font(const QString &name);

    /**
     * The host's global style sheet, for pages. Widgets choose a variant by dynamic properties: a
     * QPushButton "role" = "primary" or "danger"; a QToolButton "caption", which looks like a
     * heading while it is disabled; a QLabel "role" = "heading", "title", "caption",
     * "muted", "ok", "warning" or "error"; a QFrame "role" = "card".
     */
    QString styleSheet() const;
    /** Grows with each change of theme. */
    int revision() const;

    /** Gives the application its style, font and palette, now and with each later theme. Sets no
     *  style sheet: a page that wants its own looks must not inherit one. */
    void applyToApplication();

Q_SIGNALS:
    /** Colours and style sheet are another theme's. */
    void themeChanged();

private:
    void applyPalette();

    Theme m_theme = Theme::Light;
    ThemeColours m_colours;
    QString m_styleSheet;
    int m_revision = 1;
    bool m_applied = false;
};

} // namespace brisa
