#pragma once

#include <QProgressDialog>

namespace zeplet
{

/** Says that files are being copied. It has no buttons: who shows it closes it. */
class SyncDialog : public QProgressDialog
{
    Q_OBJECT

public:
    SyncDialog(const QString &label, QWidget *parent);

    /** Shows the dialog modally until finish(), but not longer than limitMs. */
    void execFor(int limitMs);
    /** Closes the dialog if it is visible. */
    void finish();
};

} // namespace zeplet
