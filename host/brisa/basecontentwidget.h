#pragma once

#include "hostexport.h"

#include <QJsonValue>
#include <QString>
#include <QWidget>

namespace brisa
{

/**
 * What the program editor shows to insert an instruction or to edit the properties of one. The
 * editor fills it from the instruction's text, asks whether what the operator entered will do, and
 * takes the text back. The order of the virtual functions is part of the interface. GUI thread.
 */
class HOST_EXPORT BaseContentWidget : public QWidget
{
    Q_OBJECT

public:
    /** Belongs to the parent, if there is one; the editor gives it one. */
    explicit BaseContentWidget(QWidget *parent = nullptr);
    ~BaseContentWidget() override;

    /** Shows the values of an instruction, given as its line of program text. */
    virtual void FillWith(const QString &text);
    /** The instruction as program text. Empty by default. */
    virtual QString ToString();
    /** The instruction as data, for an editor that keeps its programs that way. Null by default. */
    virtual QJsonValue ToJsonValue();
    /** Whether what is entered may be inserted. True by default. */
    virtual bool CheckInsert();
    /** Whether what is entered may take the place of a line. What CheckInsert() says by default. */
    virtual bool CheckReplace();
    /** The program's points or variables changed: reads again what it offers of them. For an editor
     *  that keeps its widgets; the panel's makes a new one each time. */
    virtual void RefreshProgramData();
    /** A title for the widget, for an editor that shows several; empty, as by default: the
     *  instruction's type. */
    virtual QString GetLabel();
};

} // namespace brisa
