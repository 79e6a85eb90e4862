#pragma once

#include <QString>
#include <QStringList>

namespace simulator
{

/** What a controller of one software version can do. */
class Profile
{
public:
    /** Of the version's first two or three numbers; a version that is not in the list plays like
     *  the newest one of the plain kind, 3.3.1. */
    explicit Profile(const QString &version);

    /** "2.2", "2.3", "3.0", "3.1", "3.2", "3.3.1", "3.10" */
    static QStringList names();

    QString name() const { return m_name; }
    /** It takes `move.move_to.jc` and `.l`, where others take `move.j` and `move.l`. */
    bool hasMoveTo() const { return m_extended; }
    /** It monitors persistent variables: `monitor.*`. */
    bool hasMonitor() const { return m_extended; }

private:
    QString m_name;
    bool m_extended = false;
};

} // namespace simulator
