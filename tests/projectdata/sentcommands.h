#pragma once

#include "fakepeer.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

/** What a hub was told since the last take(): "<command> <argument>" and "watch <key> <on>". */
class SentCommands
{
public:
    explicit SentCommands(const FakePeer &hub)
        : m_hub(hub)
    {
        take();
    }

    QStringList seen() const
    {
        const QVector<rpc::Message> requests = m_hub.requests();
        QStringList lines;
        for (int i = m_taken; i < requests.size(); ++i) {
            const QJsonObject params = requests.at(i).params.toObject();
            const QString key = params["key"].toString();
            if (requests.at(i).method == QLatin1String("hub.command"))
                lines.append(key + ' ' + text(params["value"]));
            if (requests.at(i).method == QLatin1String("hub.watch"))
                lines.append("watch " + key + ' ' + text(params["on"]));
        }
        return lines;
    }

    QStringList take()
    {
        const QStringList lines = seen();
        m_taken = m_hub.requests().size();
        return lines;
    }

private:
    static QString text(const QJsonValue &value)
    {
        const auto line
            = QJsonDocument(QJsonArray {value}).toJson(QJsonDocument::Compact).trimmed();
        return QString::fromUtf8(line.mid(1, line.size() - 2));
    }

    const FakePeer &m_hub;
    int m_taken = 0;
};
