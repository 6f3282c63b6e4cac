#include "SmoothNoise.h"

#include <cmath>

namespace zephyrix {

std::uint64_t mixed(std::uint64_t a, std::uint64_t b) noexcept {
    // The finaliser of the generator SplitMix64 (Steele, Lea, Flood 2014).
    std::uint64_t z = a + 0x9E3779B97F4A7C15U * (b + 1);
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31U);
}

double fractionOf(std::uint64_t mixedNumber) noexcept {
    return static_cast<double>(mixedNumber >> 11U) * 0x1.0p-53;
}

double SmoothNoise::at(double hours) const noexcept {
    const double position = hours / periodInHours_;
    const double step = std::floor(position);
    const auto lattice = static_cast<std::uint64_t>(static_cast<std::int64_t>(step));
    const double before = 2.0 * fractionOf(mixed(seed_, lattice)) - 1.0;
    const double after = 2.0 * fractionOf(mixed(seed_, lattice + 1)) - 1.0;
    const double t = position - step;
    const double eased = t * t * t * (t * (t * 6.0 - 15.0) + 10.0);  // flat at both ends
    return before + (after - before) * eased;
}

}  // namespace zephyrix
