#pragma once

#include <QObject>
#include <QString>

namespace tavik
{

/**
 * Keeps the setting "workspace" from being empty: the last one that was not takes its place again,
 * and the operator is told. That one is kept in "last-workspace.json" of the panel's runtime
 * directory, apart from the settings, whose file a person may damage. A panel that never had one
 * uses "workspace" in its runtime directory. GUI thread; blocks for the disk.
 */
class Workspace : public QObject
{
    Q_OBJECT

public:
    explicit Workspace(QObject *parent = nullptr);

private:
    void check();
    void restore();
    void remember(const QString &path);

    QString m_last;
};

} // namespace tavik
