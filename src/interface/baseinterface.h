#pragma once

#include <zeplet/export.h>

#include <QObject>

namespace zeplet
{

/** The base of the interface objects: a place to hang further facades on. */
class ZEPLET_EXPORT BaseInterface : public QObject
{
public:
    /** Belongs to the parent, if there is one. */
    explicit BaseInterface(QObject *parent);
    ~BaseInterface() override;
};

} // namespace zeplet
