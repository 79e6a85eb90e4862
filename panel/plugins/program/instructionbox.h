#pragma once

#include <QPointer>
#include <QScrollArea>
#include <brisa/rlmanager.h>

/**
 * Holds a plugin's widget for an instruction, and asks it. Whatever the plugin does wrong ends
 * here: each operation returns the second half of a sentence about it, or nothing.
 */
class InstructionBox : public QScrollArea
{
    Q_OBJECT

public:
    explicit InstructionBox(QWidget *parent = nullptr);
    ~InstructionBox() override;

    /** Makes the widget and shows it in place of an earlier one. */
    QString make(const brisa::RlManager::WidgetMaker &maker);
    /** The plugin's widget has nothing in it. */
    bool isBare() const { return m_bare; }
    QString fill(const QString &line);
    QString checkInsert(bool *will);
    QString checkReplace(bool *will);
    QString read(QString *text);

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QString ask(const std::function<void(brisa::BaseContentWidget *)> &question);
    void fit();

    QPointer<brisa::BaseContentWidget> m_content;
    bool m_bare = false;
};
