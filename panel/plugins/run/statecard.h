#pragma once

#include "kit/marks.h"
#include "kit/text.h"

#include <QFrame>
#include <brisa/glyph.h>

class QLabel;
class QPushButton;

namespace brisa
{
class ElidedLabel;
}

/** One state of the robot: pictogram, caption, value in large type, a line that explains it, and
 * the button that changes it. */
class StateCard : public QFrame
{
    Q_OBJECT

public:
    /** buttonName: its object name; empty: the card has no button. */
    StateCard(const kit::Text &caption, const QString &buttonName, QWidget *parent = nullptr);

    void setState(brisa::Glyph glyph, kit::Tone tone, const QString &value, const QString &hint);
    void setButton(const QString &text, bool enabled);

Q_SIGNALS:
    void tapped();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void applyTheme();

    QLabel *m_picture;
    brisa::ElidedLabel *m_caption;
    brisa::ElidedLabel *m_value;
    brisa::ElidedLabel *m_hint;
    QPushButton *m_button = nullptr;
    brisa::Glyph m_glyph = brisa::Glyph::Info;
    kit::Tone m_tone = kit::Tone::Muted;
};
