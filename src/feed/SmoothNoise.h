#pragma once

#include <cstdint>

namespace zephyrix {

/// A curve over time that looks like chance and is the same on every machine and in every run: it
/// wanders between -1 and 1, smoothly, with a new direction every `period`.
class SmoothNoise {
  public:
    /// Curves of different seeds have nothing to do with each other.
    SmoothNoise(std::uint64_t seed, double periodInHours) noexcept
        : seed_(seed), periodInHours_(periodInHours) {}

    /// The curve at a time in hours since 1970.
    [[nodiscard]] double at(double hours) const noexcept;

  private:
    std::uint64_t seed_;
    double periodInHours_;
};

/// A well mixed number made of two.
[[nodiscard]] std::uint64_t mixed(std::uint64_t a, std::uint64_t b) noexcept;

/// The same as a fraction, evenly spread over [0, 1).
[[nodiscard]] double fractionOf(std::uint64_t mixedNumber) noexcept;

}  // namespace zephyrix
