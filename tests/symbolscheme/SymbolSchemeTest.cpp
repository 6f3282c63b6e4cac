#include <array>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "symbolscheme/SymbolScheme.h"

using namespace zephyrix;

namespace {

constexpr int kNoReport = -9999;

bool isThunder(std::string_view name) {
    const bool over = name.find("in the last hour") != std::string_view::npos;
    return !over && (name.find("thunder") != std::string_view::npos ||
                     name.find("lightning,") != std::string_view::npos);
}

// What a reader of the code makes of its last two digits: on, off, or the flag of the symbol
// before.
enum class Lightning { Off, On, KeptFromBefore };

Lightning lightningOf(std::uint32_t code) {
    const auto special = code % 100;
    if (special >= 20 && special <= 59)
        return Lightning::On;
    if (special == 90 || (special >= 10 && special <= 19 && code % 100000 < 99910))
        return Lightning::KeptFromBefore;
    return special >= 10 && special <= 19 ? Lightning::On : Lightning::Off;
}

}  // namespace

TEST(SymbolScheme, CodesOfWellKnownWeathers) {
    struct Case {
        int ww, eighths;
        CelestialBody body;
        std::uint32_t code;
        const char* why;
    };
    constexpr auto sun = CelestialBody::Sun;
    constexpr auto moon = CelestialBody::Moon;
    constexpr std::array cases{
        Case{0, 0, sun, 1000000, "clear day"},
        Case{2, 0, moon, 2000000, "clear night"},
        Case{2, 2, sun, 1100000, "few clouds"},
        Case{3, 8, moon, 300000, "overcast hides the moon"},
        Case{kNoReport, 4, sun, 1200000, "no present weather: the sky alone"},
        Case{100, 4, sun, 1200000, "past the table: the sky alone"},
        Case{2, kNoReport, moon, 2200000, "no cloud report"},
        Case{80, 4, sun, 1121100, "light showers, sun and a small pale cloud"},
        Case{63, 8, sun, 520200, "rain, a large grey cloud"},
        Case{95, 3, moon, 2121230, "thunderstorm at night, the small cloud's thunder twin"},
        Case{45, 9, sun, 70300, "fog hides everything"},
        Case{44, 1, sun, 1970200, "fog with the sun through it: no cloud, no shade"},
    };
    for (const Case& row : cases)
        EXPECT_EQ(symbolCode(row.ww, row.eighths, row.body), row.code) << row.why;
    EXPECT_EQ(withWarning(1121104, 3), 1121103U);
    EXPECT_EQ(warningCode(2), 9999992U);
}

TEST(SymbolScheme, LightningIsDrawnInThunderstormsAndNeverLeftToTheSymbolBefore) {
    for (const PresentWeather& weather : kPresentWeathers)
        for (int eighths = 0; eighths <= 10; ++eighths)
            for (int warning = 0; warning <= 9; ++warning) {
                const auto code =
                    withWarning(symbolCode(weather.ww, eighths, CelestialBody::Sun), warning);
                EXPECT_EQ(lightningOf(code),
                          isThunder(weather.name) ? Lightning::On : Lightning::Off)
                    << code << " ww " << weather.ww << ": " << weather.name;
            }
    EXPECT_EQ(lightningOf(99910), Lightning::On) << "9991 is the one exception";
}

TEST(SymbolScheme, EveryCodeAsksForImagesOfTheScheme) {
    std::set<int> clouds, numbers;
    for (const LayerImage& image : kCloudImages)
        clouds.insert(image.value);
    for (const LayerImage& image : kPrecipitationImages)
        numbers.insert(image.value);
    for (const std::uint32_t code : everySymbolCode()) {
        const int cloud = int(code / 100000 % 10);
        const int number = int(code % 100000 / 10);
        const int image = cloud + (lightningOf(code) == Lightning::On ? 3 : 0);
        const bool drawsCloud = cloud != 0 && cloud != 9;
        EXPECT_TRUE(!drawsCloud || clouds.contains(image)) << code << ": cloud image " << image;
        EXPECT_TRUE(number == 0 || numbers.contains(number)) << code;
        EXPECT_NE(code, 0U) << "an empty symbol";
    }
}

TEST(SymbolScheme, MoreCloudNeverShowsMoreSky) {
    for (const SkyProfile& sky : kSkyProfiles)
        for (std::size_t eighths = 1; eighths <= 9; ++eighths)
            EXPECT_LE(sky.choices[eighths].body, sky.choices[eighths - 1].body)
                << sky.name << " at " << eighths << " eighths";
}
