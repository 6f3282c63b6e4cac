#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "symbolscheme/SymbolTables.h"
#include "symbolscheme/SymbolTypes.h"

namespace zephyrix {

/// Digit D1 of a symbol code.
enum class CelestialBody { None = 0, Sun = 1, Moon = 2 };

/// The seven-digit code of the symbol that shows an observed or forecast weather, without a
/// warning: what the tables of resources/symbols/ say. docs/symbol-codes.md explains the digits.
///
///     symbolCode(80, 4, CelestialBody::Sun) == 1121100  // sun, small cloud, light rain showers
///
/// @param ww       present weather, WMO code table 4677; outside 0 to 99 (no report) only the sky
///                 is shown
/// @param eighths  total cloud cover; 9: the sky cannot be seen; outside 0 to 9: no report
/// @param body     Sun by day, Moon by night; left out where the clouds hide it
[[nodiscard]] constexpr std::uint32_t symbolCode(int ww, int eighths, CelestialBody body) noexcept {
    const PresentWeather& weather = kPresentWeathers[ww >= 0 && ww <= 99 ? std::size_t(ww) : 0];
    const SkyProfile& sky = kSkyProfiles[std::size_t(weather.sky)];
    const SkyChoice choice =
        eighths >= 0 && eighths <= 9 ? sky.choices[std::size_t(eighths)] : sky.choices.back();
    const int digits = (choice.body ? int(body) : int(CelestialBody::None)) * 1000000 +
                       choice.cloud * 100000 + weather.number * 10;
    return std::uint32_t(digits);
}

/// The same symbol with a warning badge, 1 to 9 (kWarningImages); 0 takes it away.
[[nodiscard]] constexpr std::uint32_t withWarning(std::uint32_t code, int warning) noexcept {
    return code / 10 * 10 + std::uint32_t(warning);
}

/// A code that shows a warning alone, without a weather report. 2 is drawn as "storm".
[[nodiscard]] constexpr std::uint32_t warningCode(int warning) noexcept {
    return withWarning(9999990, warning);
}

/// Every code that the tables can produce, without warnings, ascending, each once.
[[nodiscard]] inline std::vector<std::uint32_t> everySymbolCode() {
    std::vector<std::uint32_t> codes;
    for (const PresentWeather& weather : kPresentWeathers)
        for (int eighths = 0; eighths <= 10; ++eighths)
            for (const CelestialBody body : {CelestialBody::Sun, CelestialBody::Moon})
                codes.push_back(symbolCode(weather.ww, eighths, body));
    std::sort(codes.begin(), codes.end());
    codes.erase(std::unique(codes.begin(), codes.end()), codes.end());
    return codes;
}

}  // namespace zephyrix
