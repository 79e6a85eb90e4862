#pragma once

#include <QObject>
#include <QString>
#include <optional>

namespace ostrel
{
class ModuleObject;
}

namespace panel
{

/**
 * What the data store says of the robot ("brisa.r.*") and of the two links. The members hold what
 * was heard last: they say nothing about now while controllerConnected() is false. GUI thread.
 */
class RobotState : public QObject
{
    Q_OBJECT

public:
    explicit RobotState(QObject *parent = nullptr);

    bool controllerConnected() const;
    bool hubConnected() const;

    /** Nothing while it is not known: the controller has never been heard. */
    std::optional<bool> powered() const;
    std::optional<bool> automatic() const;
    std::optional<bool> running() const;
    std::optional<int> userLevel() const;
    QString identity() const;
    QString robotType() const;
    QString version() const;

Q_SIGNALS:
    /** Something of it changed; comes once for changes that belong together. */
    void changed();

private:
    void watch(ostrel::ModuleObject *node);
    void announce();
    /** Empty where the node has no text. */
    QString text(const QString &key) const;

    bool m_announced = false;
};

} // namespace panel
