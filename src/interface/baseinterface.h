#pragma once

#include <zeplet/export.h>

#include <QObject>

namespace zeplet
{

/** The base of the interface objects: a place to hang further facades on. */
class ZEPLET_EXPORT BaseInterface : public QObject
{
public:
    explicit BaseInterface(QObject *parent)
        : QObject(parent)
    {
    }
    ~BaseInterface() override = default;
};

} // namespace zeplet
