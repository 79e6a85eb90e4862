#pragma once

#include "hostexport.h"

#include <QFrame>
#include <QString>

namespace brisa
{

/** One line of text that is cut with dots where the width is too small; the whole text is then its
 *  tool tip. It never asks for more than a little width. */
class HOST_EXPORT ElidedLabel : public QFrame
{
    Q_OBJECT

public:
    explicit ElidedLabel(const QString &text = QString(), QWidget *parent = nullptr);

    QString text() const;
    void setText(const QString &text);
    /** An invalid colour means the palette's. */
    void setColour(const QColor &colour);
    bool isElided() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QString m_text;
    QColor m_colour;
};

} // namespace brisa
