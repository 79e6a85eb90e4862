#pragma once

#include <QFrame>

class QPushButton;

namespace brisa
{
class ElidedLabel;
}

namespace panel
{

/** Is there while a start or a stop of the operator's waits for a plugin, says so, and offers to
 *  cancel it; a stop can also be had at once. */
class WaitStrip : public QFrame
{
    Q_OBJECT

public:
    explicit WaitStrip(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void follow();
    void applyTheme();

    brisa::ElidedLabel *m_text;
    QPushButton *m_stopNow;
    QPushButton *m_cancel;
};

} // namespace panel
