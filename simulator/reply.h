#pragma once

#include "refusal.h"

#include <QJsonValue>
#include <QString>
#include <link/message.h>

namespace simulator
{

/** What a command answers: a result, or an error with its reason. */
struct Reply {
    QJsonValue result = QJsonValue(true);
    int code = 0; ///< one of JSON-RPC's; 0: done
    QString reason;

    bool isDone() const { return code == 0; }

    static Reply done(const QJsonValue &result) { return {result, 0, QString()}; }
    static Reply refused(const QString &reason) { return {QJsonValue(), rpc::refused, reason}; }
    static Reply unknown(const QString &reason)
    {
        return {QJsonValue(), rpc::methodNotFound, reason};
    }
    static Reply bad(const QString &reason) { return {QJsonValue(), rpc::invalidParams, reason}; }
    /** True as the result, or the refusal. */
    static Reply of(const Refusal &refusal) { return refusal ? refused(*refusal) : Reply {}; }
};

} // namespace simulator
