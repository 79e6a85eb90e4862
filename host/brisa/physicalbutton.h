#pragma once

#include <QIcon>
#include <QString>
#include <functional>

namespace brisa
{

/** One physical key of the panel. The callback gets true on press and false on release. */
struct PhysicalButton {
    QString label;
    QIcon firstIcon; ///< shown while the key is up
    QIcon secondIcon; ///< shown while the key is down
    std::function<void(bool)> callback;
};

} // namespace brisa
