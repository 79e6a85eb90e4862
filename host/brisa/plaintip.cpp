#include "brisa/plaintip.h"

namespace brisa
{

// Escaped alone, it would be shown with its entities: Qt takes a text without tags as it is.
QString plainTip(const QString &text)
{
    if (text.isEmpty())
        return QString();
    return QStringLiteral("<p style=\"white-space: pre-wrap\">%1</p>").arg(text.toHtmlEscaped());
}

} // namespace brisa
