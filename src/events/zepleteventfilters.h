#pragma once

#include <QString>
#include <QVariant>

#include <functional>

#include <zeplet/events/zepletevent.h>
#include <zeplet/export.h>

/// Ready-made filters, and adapters from simpler callables, for the subscribing operations of the
/// event bus. Each result holds copies of its arguments and may be called from any thread.
namespace zeplet
{

/// Lets events through whose source contains a match of the pattern. "*" stands for any text and
/// "?" for one character; everything else is a regular expression, case-sensitive and not anchored.
ZEPLET_EXPORT std::function<bool(const ZepletEvent &)> filterBySource(const QString &pattern);

/// Lets events through whose source is exactly the key.
ZEPLET_EXPORT std::function<bool(const ZepletEvent &)> filterByServiceKey(const QString &key);

/// Lets events through that have the property.
ZEPLET_EXPORT std::function<bool(const ZepletEvent &)> filterByProperty(const QString &name);

/// Lets events through whose property has the value. A missing property equals an invalid value.
ZEPLET_EXPORT std::function<bool(const ZepletEvent &)> filterByPropertyValue(const QString &name,
                                                                             const QVariant &value);

/// Calls the function without the event. An empty function does nothing.
ZEPLET_EXPORT std::function<void(const ZepletEvent &)>
adaptNetworkCallback(std::function<void()> callback);

/// Calls the function with the event's data. An empty function does nothing.
ZEPLET_EXPORT std::function<void(const ZepletEvent &)>
adaptNexoCallback(std::function<void(const QVariant &)> callback);

} // namespace zeplet
