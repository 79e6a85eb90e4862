#include "link/message.h"

#include "link/limits.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

namespace rpc
{
namespace
{

const QLatin1String versionKey("jsonrpc");
const QLatin1String idKey("id");
const QLatin1String methodKey("method");
const QLatin1String paramsKey("params");
const QLatin1String resultKey("result");
const QLatin1String errorKey("error");
const QLatin1String codeKey("code");
const QLatin1String messageKey("message");
const QLatin1String dataKey("data");

QJsonValue toParams(const QJsonValue &argument)
{
    if (argument.isArray() || argument.isObject())
        return argument;
    if (argument.isNull() || argument.isUndefined())
        return QJsonValue(QJsonValue::Undefined);
    return QJsonArray {argument};
}

bool isInteger(const QJsonValue &value)
{
    return value.isDouble() && std::trunc(value.toDouble()) == value.toDouble();
}

QJsonObject errorToJson(const Message &message)
{
    QJsonObject error;
    error.insert(codeKey, message.code);
    error.insert(messageKey, message.reason);
    error.insert(dataKey, message.data);
    return error;
}

bool fail(QString *problem, const char *text)
{
    *problem = QString::fromLatin1(text);
    return false;
}

bool readCall(const QJsonObject &object, Message *message, QString *problem)
{
    const QJsonValue method = object.value(methodKey);
    if (!method.isString() || method.toString().isEmpty())
        return fail(problem, "the method is not a name");
    if (object.contains(resultKey) || object.contains(errorKey))
        return fail(problem, "a method together with a result");
    message->params = object.value(paramsKey);
    if (!message->params.isUndefined() && !message->params.isArray() && !message->params.isObject())
        return fail(problem, "the params are neither an array nor an object");
    if (message->id.isNull())
        return fail(problem, "the id of a request is null");
    message->method = method.toString();
    message->kind
        = message->id.isUndefined() ? Message::Kind::Notification : Message::Kind::Request;
    return true;
}

bool readRefusal(const QJsonValue &error, Message *message, QString *problem)
{
    if (message->id.isUndefined())
        return fail(problem, "an error without id");
    const QJsonObject object = error.toObject();
    if (!isInteger(object.value(codeKey)) || !object.value(messageKey).isString())
        return fail(problem, "an error without code and message");
    message->kind = Message::Kind::Refusal;
    message->code = object.value(codeKey).toInt();
    message->reason = object.value(messageKey).toString();
    message->data = object.value(dataKey);
    return true;
}

bool readAnswer(const QJsonObject &object, Message *message, QString *problem)
{
    const bool result = object.contains(resultKey);
    if (result == object.contains(errorKey))
        return fail(problem,
                    result ? "a result together with an error"
                           : "neither a method nor a result nor an error");
    if (!result)
        return readRefusal(object.value(errorKey), message, problem);
    if (message->id.isUndefined() || message->id.isNull())
        return fail(problem, "a result without id");
    message->kind = Message::Kind::Answer;
    message->result = object.value(resultKey);
    return true;
}

} // namespace

Message Message::request(const QJsonValue &id, const QString &method, const QJsonValue &argument)
{
    Message message = notification(method, argument);
    message.kind = Kind::Request;
    message.id = id;
    return message;
}

Message Message::notification(const QString &method, const QJsonValue &argument)
{
    Message message;
    message.method = method;
    message.params = toParams(argument);
    return message;
}

Message Message::answer(const QJsonValue &id, const QJsonValue &result)
{
    Message message;
    message.kind = Kind::Answer;
    message.id = id;
    message.result = result.isUndefined() ? QJsonValue() : result;
    return message;
}

Message Message::refusal(const QJsonValue &id, int code, const QString &reason)
{
    Message message;
    message.kind = Kind::Refusal;
    message.id = id.isUndefined() ? QJsonValue() : id;
    message.code = code;
    message.reason = reason;
    return message;
}

QByteArray encode(const Message &message)
{
    QJsonObject object;
    object.insert(versionKey, QLatin1String("2.0"));
    object.insert(idKey, message.id); // an undefined value inserts nothing
    switch (message.kind) {
    case Message::Kind::Request:
    case Message::Kind::Notification:
        object.insert(methodKey, message.method);
        object.insert(paramsKey, message.params);
        break;
    case Message::Kind::Answer:
        object.insert(resultKey, message.result);
        break;
    case Message::Kind::Refusal:
        object.insert(errorKey, errorToJson(message));
        break;
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

bool decode(const QByteArray &frame, Message *message, QString *problem)
{
    *message = Message();
    if (frame.size() > maxFrameBytes)
        return fail(problem, "a frame of more than 16 MiB");
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(frame, &error);
    if (error.error != QJsonParseError::NoError) {
        *problem
            = QStringLiteral("not JSON: %1 at byte %2").arg(error.errorString()).arg(error.offset);
        return false;
    }
    if (!document.isObject())
        return fail(problem, "not a JSON object");
    const QJsonObject object = document.object();
    if (object.value(versionKey) != QJsonValue(QLatin1String("2.0")))
        return fail(problem, "not JSON-RPC 2.0");
    message->id = object.value(idKey);
    const QJsonValue &id = message->id;
    if (!id.isUndefined() && !id.isNull() && !id.isString() && !isInteger(id))
        return fail(problem, "the id is neither an integer nor a text");
    if (object.contains(methodKey))
        return readCall(object, message, problem);
    return readAnswer(object, message, problem);
}

} // namespace rpc
