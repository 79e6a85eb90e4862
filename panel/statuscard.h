#pragma once

#include "robotreadings.h"

#include <QFrame>

class QLabel;

namespace brisa
{
class ElidedLabel;
}

namespace panel
{

/** A card with a caption and one reading: pictogram, value, hint. */
class StatusCard : public QFrame
{
    Q_OBJECT

public:
    explicit StatusCard(const QString &caption, QWidget *parent = nullptr);

    void setReading(const Reading &reading);

private:
    void applyTheme();

    Reading m_reading;
    QLabel *m_picture;
    brisa::ElidedLabel *m_caption;
    brisa::ElidedLabel *m_value;
    brisa::ElidedLabel *m_hint;
};

} // namespace panel
