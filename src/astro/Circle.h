#pragma once

#include <cmath>

namespace zephyrix {

inline constexpr double pi = 3.141592653589793;
inline constexpr double twoPi = 6.283185307179586;

/// A value brought into [0, period).
[[nodiscard]] inline double modulo(double value, double period) {
    return value - period * std::floor(value / period);
}

}  // namespace zephyrix
