#pragma once

#include "hostexport.h"

#include <QObject>

namespace brisa
{

/** Speaks of the controller's link. */
class HOST_EXPORT TaskNetworkManager : public QObject
{
    Q_OBJECT

public:
    explicit TaskNetworkManager(QObject *parent = nullptr);

    /** Whether the controller's endpoint is connected now. */
    bool isConnect() const;
};

} // namespace brisa
