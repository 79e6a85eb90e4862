#include "brisa/thememanager.h"

#include "brisa/stylesheet_p.h"

#include <QApplication>
#include <QPointer>
#include <QToolTip>

namespace brisa
{

namespace
{

QPointer<ThemeManager> &firstManager()
{
    static QPointer<ThemeManager> manager;
    return manager;
}

ThemeColours lightColours()
{
    ThemeColours c;
    c.window = 0xebeef2;
    c.surface = 0xffffff;
    c.raised = 0xf4f6f8;
    c.border = 0xcfd6de;
    c.text = 0x18222d;
    c.mutedText = 0x566473;
    c.disabledText = 0x9aa5b1;
    c.accent = 0x0b62c4;
    c.onAccent = 0xffffff;
    c.accentSoft = 0xdfebf9;
    c.ok = 0x17703d;
    c.okSoft = 0xdff3e6;
    c.warning = 0x9a5b00;
    c.warningSoft = 0xfdf0d8;
    c.error = 0xbf2424;
    c.errorSoft = 0xfce4e4;
    return c;
}

ThemeColours darkColours()
{
    ThemeColours c;
    c.window = 0x10161d;
    c.surface = 0x19212a;
    c.raised = 0x232d38;
    c.border = 0x35414e;
    c.text = 0xe8edf2;
    c.mutedText = 0x9aa9b8;
    c.disabledText = 0x5f6d7b;
    c.accent = 0x58a6ff;
    c.onAccent = 0x08131f;
    c.accentSoft = 0x1d3550;
    c.ok = 0x4cc07d;
    c.okSoft = 0x16321f;
    c.warning = 0xe5a93c;
    c.warningSoft = 0x3a2c10;
    c.error = 0xf47272;
    c.errorSoft = 0x431d1f;
    return c;
}

/** What the first one lacks comes from the first of the others that is installed: Chinese. */
const QStringList &families()
{
    static const QStringList names {
        QStringLiteral("DejaVu Sans"), QStringLiteral("Noto Sans CJK SC"),
        QStringLiteral("Droid Sans Fallback"), QStringLiteral("WenQuanYi Micro Hei")};
    return names;
}

} // namespace

ThemeManager::ThemeManager(QObject *parent)
    : QObject(parent)
    , m_colours(lightColours())
    , m_styleSheet(globalStyleSheet(m_colours))
{
    if (!firstManager())
        firstManager() = this;
}

ThemeManager::~ThemeManager() = default;

ThemeManager *ThemeManager::instance()
{
    if (!firstManager())
        new ThemeManager;
    return firstManager();
}

Theme ThemeManager::theme() const
{
    return m_theme;
}

void ThemeManager::setTheme(Theme theme)
{
    if (theme == m_theme)
        return;
    m_theme = theme;
    m_colours = theme == Theme::Dark ? darkColours() : lightColours();
    m_styleSheet = globalStyleSheet(m_colours);
    ++m_revision;
    if (m_applied)
        applyPalette();
    Q_EMIT themeChanged();
}

bool ThemeManager::setTheme(const QString &name)
{
    if (name != QLatin1String("light") && name != QLatin1String("dark"))
        return false;
    setTheme(name == QLatin1String("dark") ? Theme::Dark : Theme::Light);
    return true;
}

QString ThemeManager::themeName() const
{
    return m_theme == Theme::Dark ? QStringLiteral("dark") : QStringLiteral("light");
}

const ThemeColours &ThemeManager::colours() const
{
    return m_colours;
}

QColor ThemeManager::levelColour(const QString &level) const
{
    if (level == QLatin1String("error"))
        return m_colours.error;
    return level == QLatin1String("warning") ? m_colours.warning : m_colours.accent;
}

QColor ThemeManager::levelBackground(const QString &level) const
{
    if (level == QLatin1String("error"))
        return m_colours.errorSoft;
    return level == QLatin1String("warning") ? m_colours.warningSoft : m_colours.surface;
}

QPalette ThemeManager::palette() const
{
    QPalette p(m_colours.raised, m_colours.window);
    p.setColor(QPalette::WindowText, m_colours.text);
    p.setColor(QPalette::Text, m_colours.text);
    p.setColor(QPalette::ButtonText, m_colours.text);
    p.setColor(QPalette::Base, m_colours.surface);
    p.setColor(QPalette::AlternateBase, m_colours.raised);
    p.setColor(QPalette::ToolTipBase, m_colours.raised);
    p.setColor(QPalette::ToolTipText, m_colours.text);
    p.setColor(QPalette::PlaceholderText, m_colours.mutedText);
    p.setColor(QPalette::Highlight, m_colours.accent);
    p.setColor(QPalette::HighlightedText, m_colours.onAccent);
    p.setColor(QPalette::Link, m_colours.accent);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, m_colours.disabledText);
    return p;
}

QFont ThemeManager::font(TextSize size, bool bold)
{
    QFont font;
    font.setFamilies(families());
    font.setPixelSize(static_cast<int>(size));
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QFont ThemeManager::font(const QString &name)
{
    Q_UNUSED(name)
    return font(TextSize::Body);
}

QString ThemeManager::styleSheet() const
{
    return m_styleSheet;
}

int ThemeManager::revision() const
{
    return m_revision;
}

void ThemeManager::applyToApplication()
{
    m_applied = true;
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setFont(font(TextSize::Body));
    applyPalette();
}

// Tool tips have a palette of their own.
void ThemeManager::applyPalette()
{
    QApplication::setPalette(palette());
    QToolTip::setPalette(palette());
}

} // namespace brisa
