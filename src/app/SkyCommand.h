#pragma once

#include "Command.h"

namespace zephyrix {

/// "zephyrix sky": sun, twilight and moon of a day at a place.
extern const Command skyCommand;

}  // namespace zephyrix
