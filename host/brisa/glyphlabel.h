#pragma once

#include "brisa/glyph.h"
#include "brisa/tone.h"
#include "hostexport.h"

#include <QWidget>

namespace brisa
{

/** A pictogram with a short text beside it, in the colour of its tone; for status bars. GUI thread.
 */
class HOST_EXPORT GlyphLabel : public QWidget
{
    Q_OBJECT

public:
    explicit GlyphLabel(Glyph glyph, const QString &text = QString(), Tone tone = Tone::Plain,
                        QWidget *parent = nullptr);

    QString text() const;
    void setText(const QString &text);
    void setGlyph(Glyph glyph);
    void setTone(Tone tone);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    Glyph m_glyph;
    QString m_text;
    Tone m_tone;
};

} // namespace brisa
