#include "jsontext.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace simulator
{

// QJsonDocument takes arrays and objects only, so that a value travels as the one element of one.

std::optional<QJsonValue> jsonFromText(const QString &text, QString *error)
{
    QJsonParseError parsed;
    const QByteArray wrapped = '[' + text.toUtf8() + ']';
    const QJsonArray array = QJsonDocument::fromJson(wrapped, &parsed).array();
    if (parsed.error != QJsonParseError::NoError) {
        *error = QStringLiteral("not JSON: %1").arg(parsed.errorString());
        return std::nullopt;
    }
    if (array.size() != 1) {
        *error = QStringLiteral("not JSON: one value expected");
        return std::nullopt;
    }
    return array.first();
}

QByteArray jsonToText(const QJsonValue &value)
{
    const QByteArray wrapped = QJsonDocument(QJsonArray {value}).toJson(QJsonDocument::Compact);
    return wrapped.mid(1, wrapped.size() - 2);
}

} // namespace simulator
