#pragma once

#include "brisa/glyph.h"
#include "hostexport.h"

#include <QString>
#include <QWidget>

class QFrame;
class QToolButton;

namespace brisa
{

class ElidedLabel;
class GlyphLabel;
class LogHistory;

/**
 * Shows what ManagerHelper::throwLog() throws: the newest message in its level's colour, how many
 * warnings and errors came, and, opened by a tap, the history above the banner. GUI thread.
 */
class HOST_EXPORT LogBanner : public QWidget
{
    Q_OBJECT

public:
    explicit LogBanner(QWidget *parent = nullptr);
    ~LogBanner() override;

    /** level: "warning", "error", or any other for "info". */
    void addMessage(QObject *sender, const QString &level, const QString &message);
    void clear();

    /** The newest message and its level; empty where there is none. */
    QString message() const;
    QString level() const;
    /** How many messages of the level came since the last clear(). */
    int count(const QString &level) const;

    bool isHistoryVisible() const;
    void setHistoryVisible(bool visible);

    static Glyph levelGlyph(const QString &level);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildRow();
    void buildHistory();
    void refresh();
    void applyTheme();
    void placeHistory();

    LogHistory *m_history;
    QFrame *m_panel = nullptr;
    ElidedLabel *m_text;
    GlyphLabel *m_warnings;
    GlyphLabel *m_errors;
    QToolButton *m_toggle;
};

} // namespace brisa
