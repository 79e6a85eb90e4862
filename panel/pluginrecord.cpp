#include "pluginrecord.h"

namespace panel
{

namespace
{

QString stateWord(PluginRecord::State state)
{
    switch (state) {
    case PluginRecord::Running:
        return QStringLiteral("running");
    case PluginRecord::Refused:
        return QStringLiteral("refused");
    case PluginRecord::LeftOut:
        return QStringLiteral("left out");
    case PluginRecord::Faulty:
        return QStringLiteral("faulty");
    }
    return QString();
}

} // namespace

QString PluginRecord::name() const
{
    return isPlainName(tag.name) ? tag.name : file.completeBaseName();
}

QJsonObject PluginRecord::toJson() const
{
    return {{"file", file.fileName()}, {"name", name()},         {"state", stateWord(state)},
            {"sentence", sentence},    {"library", tag.library}, {"qt", tag.qt}};
}

} // namespace panel
