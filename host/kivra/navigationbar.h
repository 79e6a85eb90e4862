#pragma once

#include "hostexport.h"

#include <QWidget>

class QScrollArea;
class QVBoxLayout;

namespace qo
{
namespace kivra
{

class NavigationItem;

/**
 * Shows the navigation tree of the data store as a column of entries under their groups' titles,
 * follows it whoever changes it, and shows an entry's centre page when it is clicked. Make the
 * panel's centre area first. GUI thread.
 */
class HOST_EXPORT NavigationBar : public QWidget
{
    Q_OBJECT

public:
    explicit NavigationBar(QWidget *parent = nullptr);
    ~NavigationBar() override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void followCentre();
    void followTheme();
    void rebuild();
    void clear();
    void addTitle(const QString &title);
    void open(const QString &nav);
    void markCurrent();

    QScrollArea *m_scroll;
    QVBoxLayout *m_column;
};

} // namespace kivra
} // namespace qo
