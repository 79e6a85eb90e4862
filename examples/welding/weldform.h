#pragma once

#include "weldinstructions.h"

#include <zeplet/rl/rlcontentbase.h>

#include <QVector>

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;

/**
 * The widget with which one instruction is inserted or edited: a line for each number, a choice of
 * the project's robot targets, and, below them, what is still wrong. It shows a line as it is
 * written, wrong values too; what stands around the values stays as it was.
 */
class WeldForm : public zeplet::RLContentBase
{
    Q_OBJECT

public:
    /** The instruction is one of weldInstructions(). */
    explicit WeldForm(const WeldInstruction &instruction, QWidget *parent = nullptr);

    void FillWith(const QString &text) override;
    QString ToString() override;
    bool CheckInsert() override;
    bool CheckReplace() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void createFields(QFormLayout *layout);
    void translate();
    void offerTargets(const QString &chosen);
    WeldLine entered() const;
    QString number(int place) const;
    bool checkLine();
    QString problem(QWidget **field) const;
    QString numberProblem(int place) const;

    const WeldInstruction &m_instruction;
    WeldLine m_line; ///< what was filled in last
    QComboBox *m_target = nullptr; ///< null where the instruction has none
    QVector<QLineEdit *> m_values;
    QVector<QLabel *> m_labels;
    QLabel *m_targetLabel = nullptr;
    QLabel *m_problem = nullptr;
};
