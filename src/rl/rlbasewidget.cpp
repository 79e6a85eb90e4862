#include <zeplet/rl/rlbasewidget.h>

#include <zeplet/rl/rlcontentbase.h>

#include <QDebug>
#include <QHBoxLayout>

namespace zeplet
{

RLBaseWidget::RLBaseWidget(RLContentBase *content, QWidget *parent)
    : brisa::BaseContentWidget(parent)
    , m_content(content)
{
    if (!content)
        return;
    content->setParent(this);
    auto *const layout = new QHBoxLayout(this);
    layout->addWidget(content);
}

RLBaseWidget::~RLBaseWidget() = default;

void RLBaseWidget::FillWith(const QString &text)
{
    if (m_content)
        m_content->FillWith(text);
}

QString RLBaseWidget::ToString()
{
    qDebug() << "<zeplet>"
             << "RLBaseWidget::ToString()";
    return m_content ? m_content->ToString() : QString();
}

bool RLBaseWidget::CheckInsert()
{
    return m_content ? m_content->CheckInsert() : true;
}

bool RLBaseWidget::CheckReplace()
{
    return m_content ? m_content->CheckReplace() : CheckInsert();
}

} // namespace zeplet
