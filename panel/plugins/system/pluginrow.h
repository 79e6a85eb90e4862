#pragma once

#include <QFrame>
#include <QJsonObject>

/** One plugin library: name, state, versions and, where there is trouble, cause and remedy. */
class PluginRow : public QFrame
{
    Q_OBJECT

public:
    /** record: an element of the host's list "panel.plugins". */
    explicit PluginRow(const QJsonObject &record, QWidget *parent = nullptr);

Q_SIGNALS:
    /** The operator wants the plugin that was left out to take part again. */
    void tryAgain(const QString &name);
};
