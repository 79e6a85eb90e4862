#pragma once

#include <QObject>
#include <QPair>
#include <QTimer>
#include <QVector3D>
#include <QVector>

/** Where the arm is, as the hub tells it. */
struct ArmState {
    bool live = false; ///< both links are up
    bool moving = false;
    QVector<QVector3D> skeleton; ///< the base, each axis, the flange; mm
    QVector<double> pose; ///< of tool0 in wobj0: mm, degrees; empty where it is not known
    QVector<double> joints; ///< degrees
    QVector<QPair<double, double>> limits; ///< degrees
};

/** Follows the arm's keys of the hub. GUI thread. */
class ArmFeed : public QObject
{
    Q_OBJECT

public:
    ArmFeed(const QString &pluginName, QObject *parent);
    ~ArmFeed() override;

    const ArmState &state() const { return m_state; }
    /** What the last move ended with, in the controller's words; empty where nothing went wrong. */
    QString moveError() const;
    /** Reads all keys at once, as they are now. */
    void read();

Q_SIGNALS:
    void changed();
    void moveErrorChanged();

private:
    void follow(const QString &key, void (ArmFeed::*told)());
    void readSoon();

    struct Watch {
        QString key;
        QString subscription;
    };
    QString m_pluginName;
    QVector<Watch> m_watches;
    ArmState m_state;
    QTimer m_read;
};
