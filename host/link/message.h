#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>

namespace rpc
{

/**
 * One JSON-RPC 2.0 object, see https://www.jsonrpc.org: a request, a
 * notification, an answer, or a refusal (an answer that carries an error). A value type.
 */
struct Message {
    enum class Kind { Request, Notification, Answer, Refusal };

    Kind kind = Kind::Notification;
    /** An integer or a text; undefined for a notification, null in the refusal of a request whose
     *  id could not be read. */
    QJsonValue id {QJsonValue::Undefined};
    QString method; ///< of a request or a notification
    QJsonValue params {QJsonValue::Undefined}; ///< array or object; undefined where left out
    QJsonValue result; ///< of an answer
    int code = 0; ///< of a refusal
    QString reason; ///< of a refusal, in words
    QJsonValue data {QJsonValue::Undefined}; ///< of a refusal, where the peer says more

    /** A null or undefined argument is left out; a scalar one travels as an array of one. */
    static Message request(const QJsonValue &id, const QString &method, const QJsonValue &argument);
    static Message notification(const QString &method, const QJsonValue &argument);
    static Message answer(const QJsonValue &id, const QJsonValue &result);
    static Message refusal(const QJsonValue &id, int code, const QString &reason);
};

/** The codes of JSON-RPC 2.0, section 5.1, that the ends of this wire use. */
constexpr int methodNotFound = -32601;
constexpr int invalidParams = -32602;
/** A command that the controller knows, but does not carry out now. */
constexpr int refused = -32000;

/** The message as one line of UTF-8. The caller holds the result against maxFrameBytes. */
QByteArray encode(const Message &message);

/** Reads one frame. False where it is anything else than one well-formed JSON-RPC 2.0 object of at
 *  most maxFrameBytes; problem then says in one line why. Members unknown to JSON-RPC are passed
 *  over. Reentrant. */
bool decode(const QByteArray &frame, Message *message, QString *problem);

} // namespace rpc
