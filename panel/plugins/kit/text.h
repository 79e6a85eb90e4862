#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace kit
{

/** What stays on the screen: in the language of the panel, called again when that changes. */
using Text = std::function<QString()>;
using Texts = std::function<QStringList()>;

} // namespace kit
