#pragma once

#include "watchlist.h"

#include <QWidget>

class EventTable;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;

namespace zeplet
{
class ZepletEvent;
}

/** The plugin's centre page: a line to watch something, and the table of events. */
class MonitorPage : public QWidget
{
    Q_OBJECT

public:
    explicit MonitorPage(const QString &pluginName, QWidget *parent = nullptr);

    void show(const zeplet::ZepletEvent &event);
    void clear();

Q_SIGNALS:
    void fullScreenRequested(bool full);
    void languageChanged();

protected:
    void changeEvent(QEvent *event) override;

private:
    void translate();
    QWidget *createHeader();
    QWidget *createWatchLine();
    QWidget *createChipArea();
    void startWatch(WatchList::Kind kind);
    void addChip(WatchList::Kind kind, const QString &name);

    WatchList m_watches;
    QLabel *m_title = nullptr;
    QPushButton *m_fullScreen = nullptr;
    QPushButton *m_watchHub = nullptr;
    QPushButton *m_watchNotify = nullptr;
    QLineEdit *m_name = nullptr;
    QScrollArea *m_chipArea = nullptr;
    QHBoxLayout *m_chips = nullptr;
    EventTable *m_table = nullptr;
};
