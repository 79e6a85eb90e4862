#pragma once

#include "marks.h"

#include <QFrame>

class QLabel;
class QToolButton;

namespace kit
{

/** What the page has to say of the operator's last action: why something did not happen and what to
 *  do next, or that it is done. It stays until it is closed or something else is said. */
class NoticeLine : public QFrame
{
    Q_OBJECT

public:
    /** Kept: only the page takes it away, because it is so as long as it says so. */
    enum Kind { Closable, Kept };

    explicit NoticeLine(Kind kind, QWidget *parent = nullptr);

    void say(Tone tone, const QString &sentence);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void applyTheme();

    QLabel *m_picture;
    QLabel *m_text;
    QToolButton *m_close;
    Tone m_tone = Tone::Plain;
};

} // namespace kit
