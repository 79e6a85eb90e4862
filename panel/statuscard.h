#pragma once

#include "robotreadings.h"

#include <QFrame>
#include <functional>

class QLabel;

namespace panel
{

/** A card with a caption and one reading: pictogram, value, hint. Its texts wrap, and the value's
 * type shrinks where it is too wide. */
class StatusCard : public QFrame
{
    Q_OBJECT

public:
    /** caption: in the language of the panel, called again when that changes. */
    explicit StatusCard(const std::function<QString()> &caption, QWidget *parent = nullptr);

    void setReading(const Reading &reading);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void nameIt();
    void fitValue();
    void applyTheme();

    Reading m_reading;
    QLabel *m_picture;
    QLabel *m_caption;
    QLabel *m_value;
    QLabel *m_hint;
};

} // namespace panel
