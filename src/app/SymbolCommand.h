#pragma once

#include "Command.h"

namespace zephyrix {

/// "zephyrix symbol": draws one weather symbol, or all of them on a sheet, into a PNG file. It
/// reads and writes neither settings nor caches.
extern const Command symbolCommand;

}  // namespace zephyrix
