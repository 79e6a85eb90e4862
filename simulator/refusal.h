#pragma once

#include <QString>
#include <optional>

namespace simulator
{

/** Why something was refused; nothing where it was done. */
using Refusal = std::optional<QString>;

} // namespace simulator
