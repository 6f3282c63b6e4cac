#pragma once

#include <span>

#include "Command.h"

namespace zephyrix {

/// The commands of `zephyrix` in the order in which --help lists them.
[[nodiscard]] std::span<const Command> commands();

}  // namespace zephyrix
