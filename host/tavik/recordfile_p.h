#pragma once

#include "ostrel/node_p.h"

#include <QString>

namespace tavik
{

/** One of the two files of a project that hold a list of records. */
struct RecordFile {
    const char *fileName; ///< "point.json"
    const char *member; ///< of the file's object: "points"
    const char *key; ///< of the data store: where the list lives
    bool (*checkRecord)(const ostrel::Node &record, QString *problem);
};

const RecordFile &pointFile();
const RecordFile &variableFile();

enum class ReadResult { Read, Missing, Damaged };

/**
 * Reads the file's list into records, which must be empty. A file is damaged where it is no plain
 * file of at most 128 MiB, no JSON, of another version than "0.2", or where a record or one of its
 * elements is not of the kind that its readers expect; problem says why. Blocks for the disk.
 */
ReadResult readRecords(const RecordFile &file, const QString &path, ostrel::Node *records,
                       QString *problem);

} // namespace tavik
