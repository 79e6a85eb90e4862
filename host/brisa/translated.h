#pragma once

#include "hostexport.h"

#include <functional>

class QWidget;

namespace brisa
{

/**
 * Runs say() now, and again whenever the application's language changes, as long as the widget
 * lives. It is to set the widget's texts with tr(). Several calls are independent. GUI thread.
 */
HOST_EXPORT void translated(QWidget *widget, std::function<void()> say);

} // namespace brisa
