#pragma once

#include "pluginrecord.h"

#include <QList>

namespace panel
{

/**
 * The list of plugin libraries for a program to read. From the construction on, what plugins print
 * goes to the standard error, to the end of the process, so that the standard output holds the
 * list and nothing else.
 */
class PluginList
{
public:
    PluginList();
    ~PluginList();
    PluginList(const PluginList &) = delete;
    PluginList &operator=(const PluginList &) = delete;

    /** Prints a line per record. False where the standard output can't be written. */
    bool print(const QList<PluginRecord> &records) const;

    /** "NAME<TAB>STATE<TAB>FILE<TAB>SENTENCE": the file with its path; control characters within a
     *  member, tabs and line breaks among them, are blanks. */
    static QString line(const PluginRecord &record);

private:
    int m_output; ///< the standard output as it was
};

} // namespace panel
