#pragma once

#include <QAbstractListModel>
#include <QDateTime>
#include <QHash>
#include <QString>
#include <QVector>

namespace brisa
{

/** One message of the log banner; count says how often it came in a row. */
struct LogMessage {
    QDateTime time;
    QString source;
    QString level;
    QString text;
    int count = 1;
};

/** The message as one line: time, source, text, and how often. */
QString messageLine(const LogMessage &message);

/** The banner's messages, the newest first, at most Limit of them. */
class LogHistory : public QAbstractListModel
{
    Q_OBJECT

public:
    static constexpr int Limit = 500;

    using QAbstractListModel::QAbstractListModel;

    /** level: "warning", "error", or any other for "info". The newest message is not repeated but
     *  counted. */
    void add(const QString &source, const QString &level, const QString &text);
    void clear();
    /** How many messages of the level came since the last clear(). */
    int count(const QString &level) const;
    const QVector<LogMessage> &messages() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QVector<LogMessage> m_messages;
    QHash<QString, int> m_counts;
};

} // namespace brisa
