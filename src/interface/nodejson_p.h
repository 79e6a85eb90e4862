#pragma once

#include <ostrel/moduleobject.h>

#include <QJsonValue>

namespace zeplet
{

/** A data node with all its children; null where there is no node. */
inline QJsonValue nodeToJson(const ostrel::ModuleObject *node)
{
    return node ? node->exportToJson(true) : QJsonValue(QJsonValue::Null);
}

} // namespace zeplet
