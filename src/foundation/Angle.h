#pragma once

namespace zephyrix {

/// Degrees to radians, without reducing the angle.
[[nodiscard]] constexpr double deg2rad(double degrees) noexcept {
    return degrees * 3.141592653589793 / 180.0;
}

}  // namespace zephyrix
