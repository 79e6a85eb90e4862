#include <zeplet/sync/syncdialog_p.h>

#include <QTimer>
#include <brisa/managerhelper.h>
#include <brisa/thememanager.h>

namespace zeplet
{

SyncDialog::SyncDialog(const QString &label, QWidget *parent)
    : QProgressDialog(parent, Qt::FramelessWindowHint)
{
    setLabelText(label);
    setFont(brisa::ManagerHelper::instance()->themeManager()->font(QStringLiteral("default")));
    setCancelButton(nullptr);
    setRange(0, 0); // busy: rsync's progress is not read
    setMinimumDuration(1);
    setWindowModality(Qt::WindowModal);
    setMinimumSize(400, 104);
    setStyleSheet(QStringLiteral("zeplet--SyncDialog { border: 2px solid palette(highlight); }"));
    // Without both, Qt shows a progress dialog by itself some time after its construction.
    reset();
    close();
}

void SyncDialog::execFor(int limitMs)
{
    QTimer limit;
    limit.setSingleShot(true);
    connect(&limit, &QTimer::timeout, this, &QDialog::close);
    limit.start(limitMs);
    reset();
    setCancelButton(nullptr);
    exec();
}

void SyncDialog::finish()
{
    if (!isVisible())
        return;
    setValue(100);
    close();
}

} // namespace zeplet
