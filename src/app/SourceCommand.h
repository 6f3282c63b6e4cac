#pragma once

#include "Command.h"

namespace zephyrix {

/// "zephyrix source": whom the panel's own feed server asks for the weather.
extern const Command sourceCommand;

}  // namespace zephyrix
