#pragma once

#include <array>
#include <string_view>

namespace zephyrix {

/// An image that a symbol code can ask for: one line of resources/symbols/scheme.tsv.
struct LayerImage {
    std::string_view image;     ///< its name in every symbol set: "sun", "cloud3", "prec2010"
    int value;                  ///< the digits that ask for it: D1, moon phase, D2, D3..D6 or D7
    std::string_view kind;      ///< one word: "rain-showers"
    std::string_view strength;  ///< "light", "moderate", "heavy", "severe"; "-" for none
    std::string_view name;      ///< in plain English: "light rain showers"
};

/// What of the sky goes with a weather at one cloud cover.
struct SkyChoice {
    int cloud;  ///< digit D2, 0 to 9
    bool body;  ///< whether the sun or the moon is shown
};

/// One line of resources/symbols/sky.tsv.
struct SkyProfile {
    std::string_view name;
    std::array<SkyChoice, 11> choices;  ///< 0 to 9 eighths, and last: no report
};

/// One line of resources/symbols/presentweather.tsv.
struct PresentWeather {
    int ww;                 ///< 0 to 99, WMO code table 4677
    int number;             ///< precipitation number D3..D6; 0 for none
    int sky;                ///< index into kSkyProfiles
    std::string_view name;  ///< in plain English
};

}  // namespace zephyrix
