#pragma once

#include "kit/page.h"
#include "projectlist.h"

namespace kit
{
class Table;
}

/** The projects of the robot: which there are, which is open, and the ways to make, open and remove
 *  one. */
class ProjectsPage : public kit::Page
{
    Q_OBJECT

public:
    explicit ProjectsPage(QWidget *parent = nullptr);

    static QString pluginName();

protected:
    void refresh() override;

private:
    void askForNew();
    void create(const QString &name, const QString &description, bool open);
    void open(const QString &name);
    void askToRemove(const QString &name);
    void remove(const QString &name);
    void tell(const QString &refusal, const QString &done);
    void refreshButtons();
    /** What speaks against another open project now; empty where nothing does. */
    QString refusalNow() const;
    const Project *find(const QString &name) const;

    QVector<Project> m_projects;
    kit::Table *m_table;
    QPushButton *m_open;
    QPushButton *m_remove;
};
