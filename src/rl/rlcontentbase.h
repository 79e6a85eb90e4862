#pragma once

#include <zeplet/export.h>

#include <QString>
#include <QWidget>

namespace zeplet
{

/**
 * What a plugin derives from to let the operator enter an instruction: the content of the widget
 * that the program editor shows to insert one, or to edit the properties of one. The order of the
 * virtual functions is part of the interface. GUI thread.
 */
class ZEPLET_EXPORT RLContentBase : public QWidget
{
    Q_OBJECT

public:
    /** The program editor takes ownership, whatever the parent. */
    explicit RLContentBase(QWidget *parent = nullptr);
    ~RLContentBase() override;

    /** Fills the widget from the text of an instruction. Does nothing by default. */
    virtual void FillWith(const QString &text);
    /** The text of the instruction; empty by default. */
    virtual QString ToString();
    /** Whether what is entered may be inserted. False by default: say when it may. */
    virtual bool CheckInsert();
    /** Whether what is entered may replace the instruction. False by default. */
    virtual bool CheckReplace();
};

} // namespace zeplet
