#pragma once

#include "fileserver.h"

#include <QString>
#include <QStringList>
#include <optional>

namespace simulator
{

/** What the command line says. */
struct Options {
    quint16 port = 9011;
    quint16 hubPort = 9012;
    QString scenario; ///< a file; empty: the defaults
    QString state; ///< the file that keeps what changes; empty: none
    QString profile; ///< the controller's version; empty: the scenario's
    FileOptions files;
    bool trace = false;
    bool untilEof = false;

    /** Prints the help or the version and ends the process where they are asked for. Nothing where
     *  the line is wrong; then `error` says why. */
    static std::optional<Options> fromArguments(const QStringList &arguments, QString *error);
};

} // namespace simulator
