#pragma once

#include "hostexport.h"

#include <QWidget>

namespace brisa
{

/**
 * Dims the widget it is made on while the host's count of open modal windows, the data node
 * "brisa.msg._", is above zero, and says how many are open. It takes no input: a count that someone
 * forgot to lower must not lock the operator out. GUI thread.
 */
class HOST_EXPORT ModalCounter : public QWidget
{
    Q_OBJECT

public:
    explicit ModalCounter(QWidget *target);
    ~ModalCounter() override;

    /** Open modal windows; never below 0. */
    int count() const;

Q_SIGNALS:
    void countChanged(int count);

protected:
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void readCount();

    int m_count = 0;
};

} // namespace brisa
