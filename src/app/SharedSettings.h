#pragma once

#include <memory>

#include "foundation/UserDefaults.h"

namespace zephyrix {

/// The store that the panel reads: place and units. Raises CommandError when it cannot be opened.
[[nodiscard]] std::unique_ptr<UserDefaults> openSharedSettings();

/// The panel's own store: its symbol set and its last weather document. Raises CommandError when it
/// cannot be opened.
[[nodiscard]] std::unique_ptr<UserDefaults> openPanelSettings();

/// Writes the changes of the store all at once or, raising CommandError, not at all.
void save(UserDefaults& settings);

}  // namespace zephyrix
