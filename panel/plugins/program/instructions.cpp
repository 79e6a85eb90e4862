#include "instructions.h"

#include "programtext.h"

#include <algorithm>

using brisa::RlManager;

namespace
{

constexpr int MostSeen = 20000; // lines
// Steps of the matching of one line from one place: a usual pattern takes some dozens of them.
const QString MatchLimit = QStringLiteral("(*LIMIT_MATCH=5000)");

const RlManager &record()
{
    return RlManager::getRlManager();
}

QString patternKey(const QString &type)
{
    return QStringLiteral("c_") + type;
}

const RlManager::WidgetMaker *makerOf(const QHash<QString, RlManager::WidgetMaker> &makers,
                                      const QString &type)
{
    const auto found = makers.constFind(type);
    return found == makers.constEnd() ? nullptr : &*found;
}

QStringList sorted(QStringList names)
{
    names.removeDuplicates();
    names.sort();
    return names;
}

} // namespace

Instructions::Instructions(QObject *parent)
    : QObject(parent)
{
    reload();
}

bool Instructions::reload()
{
    const QStringList types = this->types();
    if (types == m_types && record().patterns == m_sources)
        return false;
    m_types = types;
    m_sources = record().patterns;
    m_patterns.clear();
    m_seen.clear();
    for (const QString &type : types) {
        const auto source = m_sources.constFind(patternKey(type));
        if (source == m_sources.constEnd())
            continue;
        const QRegularExpression expression(MatchLimit + *source);
        QString fault;
        if (!expression.isValid())
            fault = tr("%1 at its character %2")
                        .arg(expression.errorString(),
                             QString::number(expression.patternErrorOffset() - MatchLimit.size()));
        m_patterns.append({type, expression, fault});
    }
    return true;
}

/** What its plugin forgot to enter among the types comes last. */
QStringList Instructions::types() const
{
    QStringList rest;
    for (const QStringList &grouped : record().groupTable)
        rest += grouped;
    const QStringList patternKeys = record().patterns.keys();
    for (const QString &key : patternKeys)
        rest.append(key.mid(patternKey(QString()).size()));
    QStringList types = record().typeKeys + sorted(rest);
    types.removeDuplicates();
    types.removeAll(QString());
    return types;
}

QVector<Instructions::Group> Instructions::groups() const
{
    QVector<QPair<QString, QString>> titles;
    QStringList keys;
    for (const auto &[key, title] : record().groups) {
        if (!keys.contains(key))
            titles.append({key, title.isEmpty() ? key : title});
        keys.append(key);
    }
    for (const QString &key : sorted(record().groupTable.keys())) {
        if (!keys.contains(key))
            titles.append({key, key});
    }
    QVector<Group> groups;
    QStringList rest = types();
    for (const auto &[key, title] : qAsConst(titles)) {
        Group group {title, record().groupTable.value(key)};
        group.types.removeDuplicates();
        group.types.removeAll(QString());
        for (const QString &type : qAsConst(group.types))
            rest.removeAll(type);
        if (!group.types.isEmpty())
            groups.append(group);
    }
    if (!rest.isEmpty())
        groups.append({tr("Others"), rest});
    return groups;
}

QString Instructions::description(const QString &type) const
{
    return record().descriptions.value(type);
}

QString Instructions::text(const QString &type) const
{
    const QString text = record().defaults.value(type);
    return text.isEmpty() ? record().skeletons.value(QStringLiteral("s_") + type) : text;
}

const RlManager::WidgetMaker *Instructions::insertWidget(const QString &type) const
{
    return makerOf(record().insertWidgets, type);
}

const RlManager::WidgetMaker *Instructions::propertyWidget(const QString &type) const
{
    return makerOf(record().propertyWidgets, type);
}

QString Instructions::typeOf(const QString &line)
{
    if (line.size() > programtext::LongestLine
        || programtext::kindOf(line) != programtext::Kind::Code)
        return QString();
    const auto seen = m_seen.constFind(line);
    if (seen != m_seen.constEnd())
        return *seen;
    if (m_seen.size() >= MostSeen)
        m_seen.clear();
    return *m_seen.insert(line, firstFit(line));
}

QString Instructions::firstFit(const QString &line)
{
    for (Pattern &pattern : m_patterns) {
        if (!pattern.fault.isEmpty())
            continue;
        const QRegularExpressionMatch match = pattern.expression.match(line);
        if (match.hasMatch())
            return pattern.type;
        if (match.isValid())
            continue;
        pattern.fault = tr("it takes too long on the line \"%1\"").arg(line.trimmed().left(40));
        Q_EMIT patternFailed();
    }
    return QString();
}

QString Instructions::problem() const
{
    const auto broken = std::find_if(m_patterns.begin(), m_patterns.end(),
                                     [](const Pattern &each) { return !each.fault.isEmpty(); });
    if (broken == m_patterns.end())
        return QString();
    const auto count = std::count_if(broken, m_patterns.end(),
                                     [](const Pattern &each) { return !each.fault.isEmpty(); });
    const QString first
        = tr("Lines with \"%1\" are not recognised, since its pattern can't be used: %2. Its "
             "plugin has to be corrected.")
              .arg(broken->type, broken->fault);
    return count == 1
        ? first
        : first + QLatin1Char(' ') + tr("Other types with such a pattern: %1.").arg(count - 1);
}
