#pragma once

#include <zeplet/export.h>

#include <QPointer>
#include <brisa/basecontentwidget.h>

namespace zeplet
{

class RLContentBase;

/**
 * The host's view of a plugin's content: what the program editor asks goes to the content. Without
 * one, anything may be inserted or replaced, and the text is empty. GUI thread; throws what the
 * content throws.
 */
class ZEPLET_EXPORT RLBaseWidget : public brisa::BaseContentWidget
{
    Q_OBJECT

public:
    /** Takes ownership of the content, which may be null. */
    RLBaseWidget(RLContentBase *content, QWidget *parent);
    ~RLBaseWidget() override;

    /** Fills the content from the text of an instruction. */
    void FillWith(const QString &text) override;
    /** The content's text; empty without one. */
    QString ToString() override;
    /** Whether the content may be inserted; true without one. */
    bool CheckInsert() override;
    /** Whether the content may replace an instruction; true without one. */
    bool CheckReplace() override;

private:
    QPointer<RLContentBase> m_content; ///< null, too, once the plugin deleted it
};

} // namespace zeplet
