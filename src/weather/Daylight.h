#pragma once

#include "Place.h"
#include "foundation/Instant.h"

namespace zephyrix {

/// Whether the sun is up at a place. In polar day it is, in polar night it is not.
[[nodiscard]] bool isDaylight(const Place& place, Instant time);

}  // namespace zephyrix
