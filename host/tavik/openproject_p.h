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
 * The open project ("tavik.project.cur_project", "<robot>/<name>"): a true "convert_signal" beside
 * it makes this read its points, variables and "projectinfo.json" into the data store and tell the
 * controller which project is open, again after each connect. Without an open project the lists are
 * empty. A project of another robot is closed when the robot's identity changes, since its data
 * would be saved as the new robot's.
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
    void open();
    void follow(const QString &project);
    void followIdentity();

    void load(const RecordFile &file, const QString &directory);
    void loadInfo(const QString &directory);
    void empty();
    void keepScratch();
    void tellController();

    brisa::ControllerManager *m_controller;
    bool m_autoloadDone = false;
};

} // namespace tavik
