#pragma once

#include <optional>

namespace zephyrix {

/// Whether things on the panel may move. Follows the desktop's switch for animations; a host that
/// learns of it in another way says so.
class Motion {
  public:
    [[nodiscard]] static bool isReduced();
    /// Nothing follows the desktop again.
    static void setReduced(std::optional<bool> reduced);
};

}  // namespace zephyrix
