#pragma once

#include "brisa/glyph.h"
#include "hostexport.h"

#include <QWidget>

namespace brisa
{

/** What a GlyphLabel says beyond its text; Plain and Muted are the text's colours. */
enum class Tone { Plain, Muted, Accent, Ok, Warning, Error };

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
    QColor colour() const;

    Glyph m_glyph;
    QString m_text;
    Tone m_tone;
};

} // namespace brisa
