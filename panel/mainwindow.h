#pragma once

#include <QWidget>

namespace brisa
{
class ElidedLabel;
}

namespace kest
{
class CenterWidget;
class ExpandSideBar;
class StatusBar;
} // namespace kest

namespace panel
{

class RobotState;
class StatusBadge;

/**
 * The panel's window of 1280 x 800: status bar with the keys to start and stop the program on top,
 * below it what waits for a plugin, then navigation, centre area, right side bar and physical keys
 * side by side, the log banner at the bottom. It is dimmed while a plugin shows a modal window.
 */
class MainWindow : public QWidget
{
    Q_OBJECT

public:
    explicit MainWindow(const RobotState &robot, QWidget *parent = nullptr);
    ~MainWindow() override;

    /** Shows a page of the centre area; false for an unknown key. */
    bool showPage(const QString &key);

    QSize sizeHint() const override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildLayout();
    void fillStatusBar();
    StatusBadge *addBadge(const QString &name);
    void addHomePage();
    void refreshBadges();

    const RobotState &m_robot;
    kest::StatusBar *m_statusBar;
    kest::CenterWidget *m_center;
    kest::ExpandSideBar *m_sideBar;
    brisa::ElidedLabel *m_name = nullptr;
    StatusBadge *m_connection = nullptr;
    StatusBadge *m_power = nullptr;
    StatusBadge *m_mode = nullptr;
    StatusBadge *m_run = nullptr;
};

} // namespace panel
