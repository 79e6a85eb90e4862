#include "refusals.h"

#include "kit/marks.h"

#include <QCoreApplication>

namespace refusals
{

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(projects)
};

QString sentence(const QString &text, const QString &name)
{
    return text.arg(kit::shortened(name));
}

} // namespace

QString ofCreate(int code, const QString &name)
{
    switch (code) {
    case 0:
        return QString();
    case -1:
        return sentence(
            Texts::tr("No project can be named \"%1\": the name is reserved or has characters "
                      "that a file's name can't have. Choose another name."),
            name);
    case -2:
        return sentence(
            Texts::tr("There is a project \"%1\" already: choose another name, or open that one."),
            name);
    default:
        return sentence(
            Texts::tr("The project \"%1\" could not be written to the panel's disk: the name may "
                      "be too long, the disk full or write-protected. Choose a shorter name, or "
                      "have the disk checked, and try again."),
            name);
    }
}

QString ofOpen(int code, const QString &name)
{
    switch (code) {
    case 0:
        return QString();
    case -1:
        return sentence(
            Texts::tr("\"%1\" can't be opened, because no project has such a name: choose one of "
                      "the list."),
            name);
    default:
        return sentence(
            Texts::tr("The project \"%1\" is no longer on the panel's disk: choose another one of "
                      "the list, or create it anew."),
            name);
    }
}

QString ofRemove(int code, const QString &name)
{
    switch (code) {
    case 0:
        return QString();
    case -1:
        return sentence(
            Texts::tr("\"%1\" can't be removed, because the panel needs it itself: choose a "
                      "project of the list."),
            name);
    case -2:
        return sentence(
            Texts::tr("The project \"%1\" was no longer on the panel's disk: nothing is left to "
                      "be removed."),
            name);
    default:
        return sentence(
            Texts::tr("The project \"%1\" could not be removed as a whole, because its directory "
                      "is write-protected or in use: have its permissions checked and try again."),
            name);
    }
}

QString ofName(const QString &name, const QStringList &taken)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return Texts::tr("The project needs a name.");
    if (trimmed.contains(QLatin1Char('/')) || trimmed == QLatin1String(".")
        || trimmed == QLatin1String(".."))
        return Texts::tr("A name is no path: leave out \"/\", and dots that stand "
                         "alone.");
    return taken.contains(trimmed) ? ofCreate(-2, trimmed) : QString();
}

} // namespace refusals
