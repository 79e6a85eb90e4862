#pragma once

#include <QFileInfo>
#include <QJsonObject>
#include <QString>

namespace panel
{

/**
 * Opens libraries that this panel has not opened before in a forked child first: a static
 * initialiser that throws, crashes or never returns then takes the child down and not the panel,
 * and the operator reads why at the first start.
 *
 * The libraries that got through are remembered in "known-libraries.json" of the runtime directory
 * until they change; one that failed is tried anew at each start. GUI thread, before there are
 * threads that hold locks for long: the child has none of them. It leaves the panel's files and
 * display alone, because it closes what it inherited, and ends without the panel's exit handlers.
 */
class LoadTrial
{
public:
    /** limit: how long a library may take to open, in milliseconds. */
    LoadTrial(const QString &runtimeDirectory, int limit);

    bool isKnown(const QFileInfo &library) const;

    struct Outcome {
        int sound = 0; ///< how many got through, of the first ones
        QString sentence; ///< why the next one did not, with the remedy; empty where all did
    };
    /** Opens the libraries in their order, up to the first one that fails. Blocks until then, at
     *  most the limit for each library. All count as sound where no child can be made. */
    Outcome run(const QFileInfoList &libraries);

private:
    struct Child;
    struct End;

    End follow(const Child &child, const QFileInfoList &libraries);
    void remember(const QFileInfo &library);
    void save() const;

    const QString m_file;
    const int m_limit;
    QJsonObject m_known; ///< path to the file's state
};

} // namespace panel
