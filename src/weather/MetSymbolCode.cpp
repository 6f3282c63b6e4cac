#include "MetSymbolCode.h"

#include <algorithm>
#include <array>

namespace zephyrix {

namespace {

struct Row {
    std::string_view code;
    int presentWeather;
    double eighths;
};

// 41 symbols: the strength is the beginning of the word, showers have the sun between the clouds.
// The two with "lights" are spelled as the service spells them.
constexpr std::array table = {
    Row{"clearsky", 2, 0},
    Row{"fair", 2, 2},
    Row{"partlycloudy", 2, 4},
    Row{"cloudy", 2, 8},
    Row{"fog", 45, 8},
    Row{"lightrain", 61, 8},
    Row{"rain", 63, 8},
    Row{"heavyrain", 65, 8},
    Row{"lightrainandthunder", 95, 8},
    Row{"rainandthunder", 95, 8},
    Row{"heavyrainandthunder", 97, 8},
    Row{"lightsleet", 68, 8},
    Row{"sleet", 69, 8},
    Row{"heavysleet", 69, 8},
    Row{"lightsleetandthunder", 95, 8},
    Row{"sleetandthunder", 95, 8},
    Row{"heavysleetandthunder", 97, 8},
    Row{"lightsnow", 71, 8},
    Row{"snow", 73, 8},
    Row{"heavysnow", 75, 8},
    Row{"lightsnowandthunder", 95, 8},
    Row{"snowandthunder", 95, 8},
    Row{"heavysnowandthunder", 97, 8},
    Row{"lightrainshowers", 80, 5},
    Row{"rainshowers", 81, 5},
    Row{"heavyrainshowers", 82, 5},
    Row{"lightrainshowersandthunder", 95, 5},
    Row{"rainshowersandthunder", 95, 5},
    Row{"heavyrainshowersandthunder", 97, 5},
    Row{"lightsleetshowers", 83, 5},
    Row{"sleetshowers", 84, 5},
    Row{"heavysleetshowers", 84, 5},
    Row{"lightssleetshowersandthunder", 95, 5},
    Row{"sleetshowersandthunder", 95, 5},
    Row{"heavysleetshowersandthunder", 97, 5},
    Row{"lightsnowshowers", 85, 5},
    Row{"snowshowers", 86, 5},
    Row{"heavysnowshowers", 86, 5},
    Row{"lightssnowshowersandthunder", 95, 5},
    Row{"snowshowersandthunder", 95, 5},
    Row{"heavysnowshowersandthunder", 97, 5},
};
static_assert(table.size() == 41);

}  // namespace

std::optional<MetSymbol> metSymbol(std::string_view code) {
    const std::string_view weather = code.substr(0, code.find('_'));
    const auto* const found = std::find_if(table.begin(), table.end(),
                                           [&](const Row& row) { return row.code == weather; });
    if (found == table.end())
        return std::nullopt;
    return MetSymbol{found->presentWeather, Eighths(found->eighths)};
}

}  // namespace zephyrix
