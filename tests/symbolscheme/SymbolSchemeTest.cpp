#include <set>
#include <string>

#include <gtest/gtest.h>

#include "support/DataLines.h"
#include "symbolscheme/SymbolScheme.h"

using namespace zephyrix;
using namespace zephyrix::testing;

namespace {

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
    forEachLine("symbols/codes.tsv", [](const DataLine& line) {
        const auto body = line[2] == u"moon" ? CelestialBody::Moon : CelestialBody::Sun;
        EXPECT_EQ(
            symbolCode(static_cast<int>(line.integer(0)), static_cast<int>(line.integer(1)), body),
            line.integer(3));
    });
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
