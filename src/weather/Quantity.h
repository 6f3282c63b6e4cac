#pragma once

#include <array>
#include <compare>
#include <string_view>

namespace zephyrix {

/// A number that knows its unit by its type: a speed in metres a second cannot be handed over where
/// knots are asked for. One unit becomes another only by a function that names it:
///
///     Knots wind = toKnots(MetresPerSecond(5.0));
///     wind.value()    // 9.719...
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

// What weather is kept in.
using Celsius = Quantity<struct CelsiusUnit>;
using Knots = Quantity<struct KnotsUnit>;
using Hectopascals = Quantity<struct HectopascalUnit>;  // reduced to sea level
using Millimetres = Quantity<struct MillimetreUnit>;    // of rain, or of melted snow
using Hours = Quantity<struct HourUnit>;
using Degrees = Quantity<struct DegreeUnit>;  // clockwise from north
using Eighths = Quantity<struct EighthUnit>;  // of the sky, 0 to 8

// What weather services speak besides.
using MetresPerSecond = Quantity<struct MetrePerSecondUnit>;
using KilometresPerHour = Quantity<struct KilometrePerHourUnit>;
using Percent = Quantity<struct PercentUnit>;
using Seconds = Quantity<struct SecondUnit>;
using Metres = Quantity<struct MetreUnit>;

inline constexpr double metresInANauticalMile = 1852.0;  // by definition

[[nodiscard]] constexpr Knots toKnots(MetresPerSecond speed) noexcept {
    return Knots(speed.value() * 3600.0 / metresInANauticalMile);
}

[[nodiscard]] constexpr Knots toKnots(KilometresPerHour speed) noexcept {
    return Knots(speed.value() * 1000.0 / metresInANauticalMile);
}

/// A share of the sky to whole eighths, halves upwards. For 0 to 100.
[[nodiscard]] constexpr Eighths toEighths(Percent ofTheSky) noexcept {
    const double eighths = ofTheSky.value() * 8.0 / 100.0;
    const int whole = static_cast<int>(eighths);
    return Eighths(eighths - whole < 0.5 ? whole : whole + 1);
}

[[nodiscard]] constexpr Hours toHours(Seconds period) noexcept {
    return Hours(period.value() / 3600.0);
}

/// What a value of a unit can be on earth, with some room; and the texts by which weather services
/// name the unit. Asking for a unit without a line below does not compile.
struct UnitFacts {
    double least;
    double most;
    std::array<std::string_view, 2> names{};
};

template <typename Measured>
struct FactsOf;

template <>
struct FactsOf<Celsius> {
    static constexpr UnitFacts facts{-100.0, 70.0, {"\u00b0C", "celsius"}};
};
template <>
struct FactsOf<Knots> {
    static constexpr UnitFacts facts{0.0, 300.0, {"kn"}};
};
template <>
struct FactsOf<MetresPerSecond> {
    static constexpr UnitFacts facts{0.0, 150.0, {"m/s"}};
};
template <>
struct FactsOf<KilometresPerHour> {
    static constexpr UnitFacts facts{0.0, 550.0, {"km/h"}};
};
template <>
struct FactsOf<Hectopascals> {
    static constexpr UnitFacts facts{800.0, 1150.0, {"hPa"}};
};
template <>
struct FactsOf<Millimetres> {
    static constexpr UnitFacts facts{0.0, 2000.0, {"mm"}};
};
template <>
struct FactsOf<Degrees> {
    static constexpr UnitFacts facts{0.0, 360.0, {"\u00b0", "degrees"}};
};
template <>
struct FactsOf<Percent> {
    static constexpr UnitFacts facts{0.0, 100.0, {"%"}};
};
template <>
struct FactsOf<Seconds> {
    static constexpr UnitFacts facts{1.0, 86400.0, {"seconds", "s"}};
};
template <>
struct FactsOf<Metres> {
    static constexpr UnitFacts facts{0.0, 2.1e7, {"m"}};
};

}  // namespace zephyrix
