#include "lastpage.h"

#include "panellog.h"

#include <QDir>
#include <QFile>
#include <cstdio>
#include <kest/centerwidget.h>

namespace panel
{

namespace
{

constexpr qint64 maximumSize = 4096;

} // namespace

LastPage::LastPage(const QString &runtimeDirectory)
    : m_file(QDir(runtimeDirectory).filePath(QStringLiteral("page")))
{
}

QString LastPage::key() const
{
    QFile file(m_file);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.read(maximumSize)).trimmed()
                                          : QString();
}

void LastPage::follow(const kest::CenterWidget *center)
{
    connect(center, &kest::CenterWidget::currentKeyChanged, this, &LastPage::keep);
}

/** Old or new, but not synced: a page that a power failure takes is not worth a wait. */
void LastPage::keep(const QString &key) const
{
    if (key.isEmpty())
        return;
    const QByteArray path = QFile::encodeName(m_file);
    QFile file(m_file + QStringLiteral(".new"));
    const QByteArray line = key.toUtf8() + '\n';
    const bool written
        = file.open(QIODevice::WriteOnly) && file.write(line) == line.size() && file.flush();
    file.close();
    if (!written || std::rename(QFile::encodeName(file.fileName()).constData(), path.constData()))
        errorLine() << tr("%1 can't be written.").arg(m_file);
}

} // namespace panel
