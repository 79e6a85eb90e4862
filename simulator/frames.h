#pragma once

#include "pose.h"
#include "refusal.h"

#include <QJsonArray>
#include <QObject>

namespace simulator
{

/**
 * The tools and work objects that the controller knows: those of the system ("tool0" and "wobj0",
 * both without any offset), of the open project and of the whole controller. A name is looked up in
 * that order. Lives on the simulator's thread.
 */
class Frames : public QObject
{
    Q_OBJECT

public:
    enum Kind { Tool, WorkObject };
    enum List { System, Project, Global };

    /** A tool: its tool centre point in the flange. A work object: its place in the base. */
    struct Frame {
        QString name;
        Pose pose;
    };
    /** What a scenario brings along. */
    struct Values {
        QVector<Frame> lists[2][3]; ///< by kind and list; those of the system are not read
    };

    explicit Frames(const Values &values, QObject *parent = nullptr);

    const QVector<Frame> &list(Kind kind, List list) const { return m_values.lists[kind][list]; }
    /** The list as objects with `name` and `pose` (x, y, z, a, b, c). */
    QJsonArray toJson(Kind kind, List list) const;
    /** Null where nothing has that name. The pointer holds until the next change. */
    const Frame *find(Kind kind, const QString &name) const;

    /** Adds a frame or moves the one of that name in the list. Refused for a name that is empty or
     *  one of the system's, and for the lists of the system. */
    Refusal set(Kind kind, List list, const Frame &frame);
    /** Refused where the list lacks the name. */
    Refusal remove(Kind kind, List list, const QString &name);

    /** Why a frame of a user can't have this name; nothing where it can. */
    static Refusal checkName(const QString &name);

signals:
    void changed();

private:
    Values m_values;
};

} // namespace simulator
