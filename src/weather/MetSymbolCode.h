#pragma once

#include <optional>
#include <string_view>

#include "Quantity.h"

namespace zephyrix {

/// What a symbol code of MET Norway says, such as "heavyrainshowersandthunder_night".
struct MetSymbol {
    int presentWeather;  // ww
    Eighths cloudCover;  // typical for the symbol
};

/// Nothing for a code that is not known. What follows "_" is not looked at: day and night at the
/// place are known here.
[[nodiscard]] std::optional<MetSymbol> metSymbol(std::string_view code);

}  // namespace zephyrix
