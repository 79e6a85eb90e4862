#pragma once

#include "kit/text.h"

#include <QFrame>

namespace brisa
{
class ElidedLabel;
}

/** Whether plugins filter what the operator asks for: a lamp, the filter's name, and what that
 *  means. */
class FilterCard : public QFrame
{
    Q_OBJECT

public:
    explicit FilterCard(const kit::Text &title, QWidget *parent = nullptr);

    void setState(bool on, const QString &meaning);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void applyTheme();

    brisa::ElidedLabel *m_title;
    brisa::ElidedLabel *m_meaning;
    bool m_on = false;
};
