#pragma once

#include "kit/text.h"

#include <QJsonArray>
#include <QWidget>

class QGridLayout;
class QLabel;
class QVBoxLayout;

/** The plugins with their state, the versions, the bus's statistics, and the choice of the panel's
 * language. */
class SystemPage : public QWidget
{
    Q_OBJECT

public:
    explicit SystemPage(QWidget *parent = nullptr);

    /** Shows what changed since the last call; cheap where nothing did. */
    void refresh();

Q_SIGNALS:
    void tryAgain(const QString &name);

private:
    QWidget *makeCard(const kit::Text &title, QGridLayout **grid);
    QWidget *makeVersions();
    QWidget *makeStatistics();
    void refreshStatistics();
    void refreshPlugins();
    void sayAgain();
    void clearRows();

    QVBoxLayout *m_rows;
    QWidget *m_rowArea;
    QLabel *m_published = nullptr;
    QLabel *m_handled = nullptr;
    QLabel *m_subscriptions = nullptr;
    QJsonArray m_shown;
};
