#pragma once

#include <QIcon>
#include <QString>
#include <functional>

namespace brisa
{

/** One physical key of the panel. The callback gets true on press and false on release. */
struct PhysicalButton {
    QString label; ///< the key's text
    QIcon firstIcon; ///< shown while the key is up
    QIcon secondIcon; ///< shown while the key is down
    std::function<void(bool)> callback; ///< gets the key's state, on the GUI thread
};

} // namespace brisa
