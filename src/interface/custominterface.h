#pragma once

#include <zeplet/export.h>
#include <zeplet/interface/baseinterface.h>

namespace zeplet
{

/** Extension point for interfaces of a customer. */
class ZEPLET_EXPORT CustomInterface : public BaseInterface
{
public:
    /** Belongs to the parent, if there is one. */
    explicit CustomInterface(QObject *parent);
    ~CustomInterface() override;
};

} // namespace zeplet
