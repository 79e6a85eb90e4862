#include "profile.h"

namespace simulator
{

namespace
{
struct Known {
    const char *name;
    bool extended;
};
constexpr Known kKnown[] {{"2.2", false}, {"2.3", true},    {"3.0", true}, {"3.1", true},
                          {"3.2", true},  {"3.3.1", false}, {"3.10", true}};
} // namespace

Profile::Profile(const QString &version)
    : m_name(QStringLiteral("3.3.1"))
{
    for (const Known &known : kKnown) {
        const QString name = QLatin1String(known.name);
        if (version != name && !version.startsWith(name + QLatin1Char('.')))
            continue;
        m_name = name;
        m_extended = known.extended;
    }
}

QStringList Profile::names()
{
    QStringList names;
    for (const Known &known : kKnown)
        names += QLatin1String(known.name);
    return names;
}

} // namespace simulator
