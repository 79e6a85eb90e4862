#pragma once

#include "kit/page.h"
#include "variablelist.h"

class LiveValues;

namespace kit
{
class NoticeLine;
class Table;
} // namespace kit

/** The variables of the open project, with what the controller reports of persistent ones. */
class VariablesPage : public kit::Page
{
    Q_OBJECT

public:
    explicit VariablesPage(QWidget *parent = nullptr);

    static QString pluginName();

protected:
    void refresh() override;
    void hideEvent(QHideEvent *event) override;

private:
    void showRows();
    void follow(bool live);
    void refreshKeys();
    QString subtitle(bool live) const;
    void askForNew();
    void askToChange();
    void askToDelete();
    void add(const QString &name, const QVariant &value, bool persistent);
    void change(const QString &name, const QVariant &value);
    void remove(const QString &name);
    void saveAgain();
    void tellDone(const QString &sentence);
    void tellUnsaved(const QString &name);
    bool refuseWithoutLink();
    const Variable *chosen() const;

    QVector<Variable> m_variables;
    QString m_project;
    bool m_unsaved = false;
    LiveValues *m_live;
    kit::NoticeLine *m_unsupported;
    kit::Table *m_table;
    QPushButton *m_save;
    QPushButton *m_change;
    QPushButton *m_delete;
    QPushButton *m_add;
};
