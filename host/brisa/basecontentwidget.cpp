#include "brisa/basecontentwidget.h"

namespace brisa
{

BaseContentWidget::BaseContentWidget(QWidget *parent)
    : QWidget(parent)
{
}

BaseContentWidget::~BaseContentWidget() = default;

void BaseContentWidget::FillWith(const QString &) { }

QString BaseContentWidget::ToString()
{
    return QString();
}

QJsonValue BaseContentWidget::ToJsonValue()
{
    return QJsonValue();
}

bool BaseContentWidget::CheckInsert()
{
    return true;
}

bool BaseContentWidget::CheckReplace()
{
    return CheckInsert();
}

void BaseContentWidget::RefreshProgramData() { }

QString BaseContentWidget::GetLabel()
{
    return QString();
}

} // namespace brisa
