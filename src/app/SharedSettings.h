#pragma once

#include <memory>

#include "foundation/UserDefaults.h"

namespace zephyrix {

/// The store that the panel reads: place and units. Raises CommandError when it cannot be opened.
[[nodiscard]] std::unique_ptr<UserDefaults> openSharedSettings();

/// Writes the changes of the store all at once or, raising CommandError, not at all.
void save(UserDefaults& settings);

}  // namespace zephyrix
