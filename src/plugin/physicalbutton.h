#pragma once

#include <QString>
#include <functional>

namespace zeplet
{

/** One physical key of the panel, as a plugin describes it. */
struct PhysicalButton {
    QString text; ///< the key's label
    QString firstIcon; ///< path of an image
    QString secondIcon; ///< path of an image
    std::function<void(bool)> callback; ///< gets the key's state, on the GUI thread
};

} // namespace zeplet
