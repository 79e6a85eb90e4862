#include "plainname.h"

#include <QFile>
#include <algorithm>

namespace names
{

bool isPlainName(const QString &name)
{
    if (name.isEmpty() || name == QLatin1String(".") || name == QLatin1String(".."))
        return false;
    const bool separates = std::any_of(name.begin(), name.end(), [](QChar c) {
        return c == QLatin1Char('/') || c.category() == QChar::Other_Control;
    });
    // What the file system's encoding cannot hold would become another project's name.
    return !separates && QFile::decodeName(QFile::encodeName(name)) == name;
}

} // namespace names
