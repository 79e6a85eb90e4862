#include "brisa/loghistory_p.h"

#include "brisa/glyph.h"
#include "brisa/logbanner.h"
#include "brisa/thememanager.h"

namespace brisa
{

namespace
{

QString knownLevel(const QString &level)
{
    const bool special = level == QLatin1String("warning") || level == QLatin1String("error");
    return special ? level : QStringLiteral("info");
}

} // namespace

QString messageLine(const LogMessage &message)
{
    QString line = message.time.toString(QStringLiteral("hh:mm:ss")) + QStringLiteral("   ");
    if (!message.source.isEmpty())
        line += message.source + QStringLiteral(":  ");
    line += message.text;
    if (message.count > 1)
        line += QStringLiteral("  (%1x)").arg(message.count);
    return line;
}

void LogHistory::add(const QString &source, const QString &level, const QString &text)
{
    const LogMessage message {QDateTime::currentDateTime(), source, knownLevel(level), text, 1};
    ++m_counts[message.level];
    if (!m_messages.isEmpty()) {
        LogMessage &newest = m_messages.first();
        if (newest.source == source && newest.level == message.level && newest.text == text) {
            newest.time = message.time;
            ++newest.count;
            Q_EMIT dataChanged(index(0), index(0));
            return;
        }
    }
    if (m_messages.size() == Limit) {
        beginRemoveRows({}, Limit - 1, Limit - 1);
        m_messages.removeLast();
        endRemoveRows();
    }
    beginInsertRows({}, 0, 0);
    m_messages.prepend(message);
    endInsertRows();
}

void LogHistory::clear()
{
    beginResetModel();
    m_messages.clear();
    m_counts.clear();
    endResetModel();
}

int LogHistory::count(const QString &level) const
{
    return m_counts.value(level);
}

const QVector<LogMessage> &LogHistory::messages() const
{
    return m_messages;
}

int LogHistory::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_messages.size();
}

QVariant LogHistory::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_messages.size())
        return {};
    const LogMessage &message = m_messages.at(index.row());
    if (role == Qt::DisplayRole)
        return messageLine(message);
    if (role == Qt::DecorationRole) {
        const QColor colour = ThemeManager::instance()->levelColour(message.level);
        return glyphPixmap(LogBanner::levelGlyph(message.level), colour);
    }
    return {};
}

} // namespace brisa
