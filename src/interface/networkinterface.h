#pragma once

#include <zeplet/export.h>
#include <zeplet/interface/baseinterface.h>

#include <QJsonValue>
#include <QString>

namespace zeplet
{

/** Reads the service hub. GUI thread. */
class ZEPLET_EXPORT NetworkInterface : public BaseInterface
{
    Q_OBJECT

public:
    /** Belongs to the parent, if there is one. */
    explicit NetworkInterface(QObject *parent);

    /** The panel's mirror of the hub's key, whether or not the link is up; answers at once. */
    QJsonValue get(const QString &key);
};

} // namespace zeplet
