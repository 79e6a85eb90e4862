#include "brisa/stylesheet_p.h"

#include "brisa/thememanager.h"

#include <QHash>

namespace brisa
{

namespace
{

// Colours are written as @name. A control's content of 38 px makes 56 with its padding and border.
// Line edits take their colour from the palette: one of their own would be the placeholder's, too.
// Combo boxes, spin boxes and check boxes keep the style's own drawing: with a border of their own
// they would need pictures for their arrows and marks.
const char *const Rules = R"(
QLabel { background: transparent; }
QLabel[role="heading"] { font-size: 24px; font-weight: bold; }
QLabel[role="title"] { font-size: 18px; font-weight: bold; }
QLabel[role="caption"] { font-size: 13px; color: @mutedText; }
QLabel[role="muted"] { color: @mutedText; }
QLabel[role="ok"] { color: @ok; font-weight: bold; }
QLabel[role="warning"] { color: @warning; font-weight: bold; }
QLabel[role="error"] { color: @error; font-weight: bold; }
QFrame[role="card"] { background: @surface; border: 1px solid @border; border-radius: 6px; }

QPushButton, QToolButton {
    min-height: 38px; padding: 8px 16px; border: 1px solid @border; border-radius: 6px;
    background: @raised; color: @text;
}
QToolButton { padding: 8px; min-width: 38px; }
QPushButton:pressed, QToolButton:pressed, QPushButton:checked, QToolButton:checked {
    background: @accentSoft; border-color: @accent;
}
QPushButton:focus, QToolButton:focus { border-color: @accent; }
QPushButton:disabled, QToolButton:disabled { color: @disabledText; background: @surface; }
QPushButton[role="primary"] { background: @accent; border-color: @accent; color: @onAccent; }
QPushButton[role="primary"]:pressed { background: @accentPressed; }
QPushButton[role="danger"] { background: @error; border-color: @error; color: @onAccent; }
QPushButton[role="danger"]:pressed { background: @errorPressed; }
QPushButton[role="primary"]:disabled, QPushButton[role="danger"]:disabled {
    background: @surface; border-color: @border; color: @disabledText;
}

QLineEdit {
    min-height: 38px; padding: 8px 12px; border: 1px solid @border; border-radius: 6px;
    background: @surface; selection-background-color: @accent; selection-color: @onAccent;
}
QLineEdit:focus { border-color: @accent; }
QLineEdit:disabled { color: @disabledText; background: @raised; }
QComboBox, QAbstractSpinBox { min-height: 54px; padding-left: 8px; }
QComboBox QAbstractItemView { background: @surface; border: 1px solid @border; }
QComboBox QAbstractItemView::item { min-height: 56px; padding-left: 12px; }
QPlainTextEdit, QTextEdit, QAbstractItemView {
    background: @surface; color: @text; border: 1px solid @border; border-radius: 6px;
    selection-background-color: @accentSoft; selection-color: @text;
    alternate-background-color: @raised;
}
QAbstractItemView[role="plain"] { border: none; }
QAbstractItemView::item { border: none; padding: 8px; }
QAbstractItemView::item:selected { background: @accentSoft; color: @text; }
QHeaderView { background: @raised; border: none; border-radius: 0; }
QHeaderView::section {
    background: @raised; color: @mutedText; padding: 8px 10px; border: none;
    border-bottom: 1px solid @border; font-size: 13px;
}
QTableView { gridline-color: @border; }

QCheckBox, QRadioButton { min-height: 56px; spacing: 12px; }
QCheckBox::indicator, QRadioButton::indicator { width: 24px; height: 24px; }
QGroupBox {
    border: 1px solid @border; border-radius: 6px; margin-top: 24px; padding: 16px;
    background: @surface;
}
QGroupBox::title { subcontrol-origin: margin; left: 0px; color: @mutedText; }
QTabWidget::pane { border: none; border-top: 1px solid @border; }
QTabBar::tab {
    min-height: 38px; padding: 8px 16px; color: @mutedText; background: transparent; border: none;
    border-bottom: 2px solid transparent;
}
QTabBar::scroller { width: 56px; }
QTabBar::tab:selected { color: @accent; border-bottom-color: @accent; }
QProgressBar {
    min-height: 8px; max-height: 8px; border: none; border-radius: 4px; background: @border;
    color: transparent;
}
QProgressBar::chunk { background: @accent; border-radius: 4px; }

QScrollBar:vertical { width: 16px; background: transparent; margin: 0; }
QScrollBar:horizontal { height: 16px; background: transparent; margin: 0; }
QScrollBar::handle { background: @border; border-radius: 4px; margin: 4px; }
QScrollBar::handle:vertical { min-height: 56px; }
QScrollBar::handle:horizontal { min-width: 56px; }
QScrollBar::add-line, QScrollBar::sub-line, QScrollBar::add-page, QScrollBar::sub-page {
    width: 0; height: 0; background: transparent;
}
QAbstractScrollArea::corner { background: transparent; border: none; }
QToolTip { background: @raised; color: @text; border: 1px solid @border; padding: 8px; }
QMenu { background: @surface; border: 1px solid @border; padding: 4px; }
QToolButton[role="caption"]:disabled {
    background: transparent; border-color: transparent; color: @text;
}
QMenu::item { min-height: 40px; padding: 8px 24px; border-radius: 4px; }
QMenu::item:selected { background: @accentSoft; color: @text; }
)";

QHash<QString, QColor> namedColours(const ThemeColours &c)
{
    return {{"window", c.window},
            {"surface", c.surface},
            {"raised", c.raised},
            {"border", c.border},
            {"text", c.text},
            {"mutedText", c.mutedText},
            {"disabledText", c.disabledText},
            {"accent", c.accent},
            {"onAccent", c.onAccent},
            {"accentSoft", c.accentSoft},
            {"accentPressed", c.accent.darker(120)},
            {"ok", c.ok},
            {"warning", c.warning},
            {"error", c.error},
            {"errorPressed", c.error.darker(120)}};
}

} // namespace

QString globalStyleSheet(const ThemeColours &colours)
{
    const QHash<QString, QColor> named = namedColours(colours);
    const QString rules = QLatin1String(Rules);
    QString sheet;
    int from = 0;
    for (int at = rules.indexOf('@'); at >= 0; at = rules.indexOf('@', from)) {
        int end = at + 1;
        while (end < rules.size() && rules.at(end).isLetter())
            ++end;
        sheet += rules.midRef(from, at - from);
        sheet += named.value(rules.mid(at + 1, end - at - 1)).name();
        from = end;
    }
    return sheet + rules.midRef(from);
}

} // namespace brisa
