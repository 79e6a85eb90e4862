#include "pluginlist.h"

#include <QFile>
#include <QJsonObject>
#include <fcntl.h>
#include <unistd.h>

namespace panel
{

namespace
{

QString cell(QString text)
{
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator
            || c == QChar::ParagraphSeparator)
            c = QLatin1Char(' ');
    }
    return text;
}

} // namespace

PluginList::PluginList()
    : m_output(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1))
{
    dup2(STDERR_FILENO, STDOUT_FILENO);
}

PluginList::~PluginList()
{
    close(m_output);
}

bool PluginList::print(const QList<PluginRecord> &records) const
{
    QByteArray text;
    for (const PluginRecord &record : records)
        text += line(record).toUtf8() + '\n';
    QFile output;
    return output.open(m_output, QIODevice::WriteOnly | QIODevice::Unbuffered)
        && output.write(text) == text.size();
}

QString PluginList::line(const PluginRecord &record)
{
    const QString state = record.toJson().value(QStringLiteral("state")).toString();
    return QStringList {cell(record.name()), state, cell(record.file.absoluteFilePath()),
                        cell(record.sentence)}
        .join(QLatin1Char('\t'));
}

} // namespace panel
