#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <zeplet/plugin/pluginbase.h>

class SystemPage;

/**
 * The panel's own plugin, named "zeplet": shows the plugins, the versions and the bus, lends its
 * name to the library's messages to the operator, and takes the bus down when the panel has
 * destroyed its modules, which the panel, below the library, can't do itself.
 */
class SystemPlugin : public zeplet::PluginBase
{
    Q_OBJECT

public:
    explicit SystemPlugin(QObject *parent);

    void init() override;
    void render() override;

private:
    void requestRetry(const QString &name);

    QPointer<SystemPage> m_page;
    QElapsedTimer m_refreshed;
};
