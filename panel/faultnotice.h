#pragma once

#include <QLabel>

namespace panel
{

/** Says across the top of a plugin's page that the plugin failed and why: the page may be empty, or
 *  show what no longer follows the robot. Lives as long as the page. GUI thread. */
class FaultNotice : public QLabel
{
    Q_OBJECT

public:
    /** Puts the sentence on the page, in place of an earlier one; nothing where the page is null.
     */
    static void put(const QString &sentence, QWidget *page);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit FaultNotice(QWidget *page);

    void fit();
    void applyTheme();
};

} // namespace panel
