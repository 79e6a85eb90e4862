#pragma once

#include <QTableWidget>

namespace zeplet
{
class ZepletEvent;
}

/** The newest events, one a row: time, sequence number, type, source and data. */
class EventTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit EventTable(QWidget *parent = nullptr);

    /** What an event carries, for reading. */
    static QString dataText(const QVariant &data);

    /** Adds a row at the top; the oldest row goes where there are too many. */
    void add(const zeplet::ZepletEvent &event);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void translate();
};
