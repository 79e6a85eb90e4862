#include "zepleteventfilters.h"

#include <QRegularExpression>

#include <utility>

namespace zeplet
{

std::function<bool(const ZepletEvent &)> filterBySource(const QString &pattern)
{
    QString text = pattern;
    text.replace(QLatin1Char('*'), QLatin1String(".*")).replace(QLatin1Char('?'), QLatin1Char('.'));
    return [expression = QRegularExpression(text)](const ZepletEvent &event) {
        return expression.match(event.source).hasMatch();
    };
}

std::function<bool(const ZepletEvent &)> filterByServiceKey(const QString &key)
{
    return [key](const ZepletEvent &event) { return event.source == key; };
}

std::function<bool(const ZepletEvent &)> filterByProperty(const QString &name)
{
    return [name](const ZepletEvent &event) { return event.hasProperty(name); };
}

std::function<bool(const ZepletEvent &)> filterByPropertyValue(const QString &name,
                                                               const QVariant &value)
{
    return [name, value](const ZepletEvent &event) {
        return event.property(name, QVariant()) == value;
    };
}

std::function<void(const ZepletEvent &)> adaptNetworkCallback(std::function<void()> callback)
{
    return [callback = std::move(callback)](const ZepletEvent &) {
        if (callback)
            callback();
    };
}

std::function<void(const ZepletEvent &)>
adaptNexoCallback(std::function<void(const QVariant &)> callback)
{
    return [callback = std::move(callback)](const ZepletEvent &event) {
        if (!callback)
            return;
        // A copy: the callable may keep a reference longer than the event lives.
        const QVariant data = event.data;
        callback(data);
    };
}

} // namespace zeplet
