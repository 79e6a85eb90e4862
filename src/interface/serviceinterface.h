#pragma once

#include <zeplet/export.h>
#include <zeplet/interface/baseinterface.h>

namespace zeplet
{

/** Extension point for interfaces of a service. */
class ZEPLET_EXPORT ServiceInterface : public BaseInterface
{
public:
    /** Belongs to the parent, if there is one. */
    explicit ServiceInterface(QObject *parent);
    ~ServiceInterface() override;
};

} // namespace zeplet
