#pragma once

#include <optional>

namespace zephyrix {

/// Whether an assistive program listens, so that texts which only it needs are worth making.
class ScreenReader {
  public:
    [[nodiscard]] static bool isRunning();
    /// For tests: instead of what the desktop says. Nothing asks the desktop again.
    static void setRunning(std::optional<bool> running);
};

}  // namespace zephyrix
