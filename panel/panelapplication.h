#pragma once

#include <QApplication>

namespace panel
{

/**
 * The application: catches what plugins throw out of an event, logs it, shows it in the banner and
 * goes on; ends in order when the system asks it to (SIGTERM, SIGINT, SIGHUP).
 */
class PanelApplication : public QApplication
{
    Q_OBJECT

public:
    PanelApplication(int &argc, char **argv);

    bool notify(QObject *receiver, QEvent *event) override;

private:
    void quitOnSignals();
};

} // namespace panel
