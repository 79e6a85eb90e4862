#include "projects.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <algorithm>

namespace simulator
{

namespace
{
/** What a file system takes as one name. */
constexpr int kMaxNameBytes = 255;

QString projectOf(const QString &path)
{
    return path.section(QLatin1Char('/'), 0, 0);
}
} // namespace

Projects::Projects(const Values &values, const QString &root, QObject *parent)
    : QObject(parent)
    , m_values(values)
    , m_root(root)
{
}

Refusal Projects::checkName(const QString &name)
{
    const bool isPlain = std::none_of(name.cbegin(), name.cend(), [](QChar c) {
        return c == QLatin1Char('/') || c.category() == QChar::Other_Control;
    });
    if (isPlain && !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..")
        && QFile::encodeName(name).size() <= kMaxNameBytes)
        return std::nullopt;
    return QStringLiteral("'%1' is no name of a project").arg(name);
}

Refusal Projects::load()
{
    const QString name = m_values.open.isEmpty() ? projectOf(m_values.autoloadPath) : m_values.open;
    return m_current.isEmpty() && !name.isEmpty() ? open(name) : std::nullopt;
}

Refusal Projects::open(const QString &name)
{
    if (auto refusal = checkName(name))
        return refusal;
    const bool isNew = !m_values.names.contains(name);
    if (isNew && m_values.names.size() >= kMaxProjects)
        return QStringLiteral("there are %1 projects already").arg(kMaxProjects);
    if (auto refusal = makeDirectory(name))
        return refusal;
    const bool isOther = m_current != name;
    m_current = name;
    if (isNew)
        m_values.names += name;
    emit opened(name);
    if (isNew || isOther)
        emit changed();
    return std::nullopt;
}

Refusal Projects::makeDirectory(const QString &name) const
{
    const QString path = m_root + QLatin1Char('/') + name + QLatin1String("/program");
    if (m_root.isEmpty() || QDir().mkpath(path))
        return std::nullopt;
    return QStringLiteral("cannot make the directory %1").arg(path);
}

Refusal Projects::removeTask(const QString &name)
{
    if (auto refusal = checkName(name))
        return refusal;
    const bool wasCurrent = m_current == name;
    if (wasCurrent)
        m_current.clear();
    if (m_values.names.removeOne(name) || wasCurrent)
        emit changed();
    return std::nullopt;
}

Refusal Projects::setAutoload(const QString &path)
{
    if (!path.isEmpty()) {
        if (auto refusal = checkName(projectOf(path)))
            return refusal;
    }
    if (m_values.autoloadPath == path)
        return std::nullopt;
    m_values.autoloadPath = path;
    emit changed();
    return std::nullopt;
}

QString Projects::filePath(const QString &file) const
{
    if (m_root.isEmpty() || m_current.isEmpty())
        return {};
    return m_root + QLatin1Char('/') + m_current + QLatin1Char('/') + file;
}

QJsonObject Projects::toJson() const
{
    const bool isOpen = !m_current.isEmpty();
    return {{QStringLiteral("autoload_prj_path"), m_values.autoloadPath},
            {QStringLiteral("cur_task"), isOpen ? m_values.tasks.value(0) : QString()},
            {QStringLiteral("cur_func"), isOpen ? m_values.function : QString()},
            {QStringLiteral("projects"), QJsonArray::fromStringList(m_values.names)},
            {QStringLiteral("tasks"), QJsonArray::fromStringList(m_values.tasks)}};
}

} // namespace simulator
