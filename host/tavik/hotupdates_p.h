#pragma once

#include <QObject>

namespace tavik
{

/**
 * Tells the running controller of each point that was added or changed: a write of
 * "tavik.project.point.hot_update.operate" is the sign, the positions stand beside it. Sends
 * without waiting; a refusal reaches the operator. Without a link nothing is sent: the controller
 * reads the files when a program starts. GUI thread.
 */
class HotUpdates : public QObject
{
    Q_OBJECT

public:
    explicit HotUpdates(QObject *parent = nullptr);

private:
    void forward(const QString &operation);
};

} // namespace tavik
