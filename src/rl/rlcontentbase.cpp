#include <zeplet/rl/rlcontentbase.h>

namespace zeplet
{

RLContentBase::RLContentBase(QWidget *parent)
    : QWidget(parent)
{
}

RLContentBase::~RLContentBase() = default;

void RLContentBase::FillWith(const QString &) { }

QString RLContentBase::ToString()
{
    return QString();
}

bool RLContentBase::CheckInsert()
{
    return false;
}

bool RLContentBase::CheckReplace()
{
    return false;
}

} // namespace zeplet
