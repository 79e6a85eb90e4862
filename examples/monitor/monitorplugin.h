#pragma once

#include <zeplet/plugin/pluginbase.h>

#include <QPointer>

class MonitorPage;
class QLabel;

namespace zeplet
{
class ZepletEvent;
}

/** Shows, counts and logs every event of the panel. */
class MonitorPlugin : public zeplet::PluginBase
{
    Q_OBJECT

public:
    explicit MonitorPlugin(QObject *parent);

    void init() override;
    void detach() override;

private:
    void createUi();
    void translate();
    void changeFullScreen(bool full);
    void createButtons();
    void subscribe();
    void receive(const zeplet::ZepletEvent &event);

    QPointer<MonitorPage> m_page;
    QPointer<QLabel> m_status;
    QPointer<QLabel> m_last;
    int m_count = 0;
    bool m_paused = false;
};
