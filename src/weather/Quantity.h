#pragma once

#include <compare>

namespace zephyrix {

/// A number that knows its unit by its type: a speed in metres a second cannot be handed over where
/// knots are asked for. There is no conversion; a source converts what it reads and says so.
///
///     Knots wind(12.0);
///     wind.value()    // 12.0
template <typename Unit>
class Quantity {
  public:
    explicit constexpr Quantity(double value) noexcept : value_(value) {}
    [[nodiscard]] constexpr double value() const noexcept { return value_; }
    // clang-tidy 14 takes the 0 inside the defaulted comparison for a pointer.
    // NOLINTNEXTLINE(modernize-use-nullptr)
    friend constexpr auto operator<=>(Quantity, Quantity) noexcept = default;

  private:
    double value_;
};

using Celsius = Quantity<struct CelsiusUnit>;
using Knots = Quantity<struct KnotsUnit>;
using Hectopascals = Quantity<struct HectopascalUnit>;  // reduced to sea level
using Millimetres = Quantity<struct MillimetreUnit>;    // of rain, or of melted snow
using Hours = Quantity<struct HourUnit>;
using Degrees = Quantity<struct DegreeUnit>;  // clockwise from north
using Eighths = Quantity<struct EighthUnit>;  // of the sky, 0 to 8

}  // namespace zephyrix
