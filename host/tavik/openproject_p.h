#pragma once

#include <QObject>
#include <QString>

namespace brisa
{
class ControllerManager;
}

namespace tavik
{

struct RecordFile;

/**
 * The open project ("tavik.project.cur_project", "<robot>/<name>"): its points, variables and
 * "projectinfo.json" are read into the data store, and the controller is told which one is open,
 * again after each connect. They are read as soon as another project is named, and when a true
 * "convert_signal" says so. Without an open project the lists are empty. A project is closed when
 * the robot's identity or the workspace changes, since its data would be saved there.
 *
 * A damaged file stays as it is: its list is empty then, the operator is told, and the first save
 * keeps a copy. GUI thread; reading blocks for the disk.
 */
class OpenProject : public QObject
{
    Q_OBJECT

public:
    /** controller outlives this object. */
    explicit OpenProject(brisa::ControllerManager *controller, QObject *parent = nullptr);

    /** Opens the project that the controller loads at its start, once for each robot, where none is
     *  open and the panel has it. */
    void openAutoload();

private:
    void convert();
    void follow(const QString &project);
    void followPlace();
    void open();

    void load(const RecordFile &file, const QString &directory);
    void loadInfo(const QString &directory);
    void empty();
    void tellController();

    brisa::ControllerManager *m_controller;
    QString m_project; ///< whose content the lists hold, as "robot/name"
    QString m_directory; ///< where saves go
    bool m_readAhead = false; ///< the next convert_signal finds it read
    bool m_autoloadDone = false;
};

} // namespace tavik
