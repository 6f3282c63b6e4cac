#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "Quantity.h"

namespace zephyrix {

/// What a weather code of the services that compute weather says: WMO code table 4677 as far as
/// they use it, but with 0 to 3 for the sky (clear, mainly clear, partly cloudy, overcast), which
/// in that table tell how the clouds change.
struct WmoWeather {
    int presentWeather;                   // ww; 2, "sky unchanged", for the codes of the sky
    std::optional<Eighths> cloudCover{};  // where the code says it
};

/// The code is 0 to 99.
[[nodiscard]] constexpr WmoWeather wmoWeather(int code) noexcept {
    constexpr std::array sky{0.0, 2.0, 4.0, 8.0};
    constexpr int skyUnchanged = 2;
    if (code >= 0 && code <= 3)
        return {skyUnchanged, Eighths(sky.at(static_cast<std::size_t>(code)))};
    return {code};
}

}  // namespace zephyrix
