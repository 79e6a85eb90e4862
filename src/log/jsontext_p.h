#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QString>

namespace zeplet
{

/** Any JSON value in one line, for the log. Documents hold arrays and objects only: the value goes
 *  in as an array's element, and the brackets come off again. */
inline QString jsonText(const QJsonValue &value)
{
    const QString text
        = QString::fromUtf8(QJsonDocument(QJsonArray {value}).toJson(QJsonDocument::Compact));
    return text.mid(1, text.size() - 2);
}

} // namespace zeplet
