#include <limits>

#include <gtest/gtest.h>

#include "meteo/MeteoMapping.h"

namespace zephyrix {
namespace {

struct SectorCase {
    std::int64_t direction;
    std::int64_t speed;
    std::int64_t sector;
    const char* why;
};

TEST(WindAndUv, DirectionsFallIntoSixteenSectors) {
    const SectorCase cases[] = {
        {990, 5, -2, "variable"},
        {990, 0, -2, "variable comes before calm"},
        {200, 0, -1, "calm"},
        {-9999, 0, -1, "calm comes before everything else"},
        {11, 5, 0, "below half a sector"},
        {12, 5, 1, "above half a sector"},
        {33, 5, 1, "33.75 is the limit"},
        {34, 5, 2, "33.75 is the limit"},
        {45, 5, 2, "the middle of a sector"},
        {348, 5, 15, "the last before north"},
        {349, 5, 0, "north again"},
        {360, 5, 0, "north again"},
        {371, 5, 0, "beyond a turn"},
        {372, 5, 1, "beyond a turn"},
        {720, -3, 0, "a negative speed is no calm"},
        {-22, 5, -1, "not wrapped"},
        {-9999, 5, -444, "not wrapped"},
    };
    for (const SectorCase& c : cases)
        EXPECT_EQ(MeteoMapping::mapWindToSector(c.direction, c.speed), c.sector)
            << c.direction << ": " << c.why;
    const std::int64_t far =
        MeteoMapping::mapWindToSector(std::numeric_limits<std::int64_t>::max(), 1);
    EXPECT_TRUE(far >= 0 && far < 16);
}

TEST(WindAndUv, SectorsOutsideOfTheListHaveNoName) {
    EXPECT_EQ(MeteoMapping::windStringForSector(16), QStringLiteral("N"));
    EXPECT_EQ(MeteoMapping::windStringForSector(-2), QStringLiteral("Rot."));
    for (const std::int64_t sector : {-1, -3, 17, 990})
        EXPECT_EQ(MeteoMapping::windStringForSector(sector), QStringLiteral("-")) << sector;
}

TEST(WindAndUv, UvClassesEndAtTheirHighestIndex) {
    const struct {
        double index;
        const char* word;
    } cases[] = {{0, "Low"},      {2.9, "Low"},      {3, "Medium"},    {5, "Medium"},
                 {6, "High"},     {7, "High"},       {8, "Very high"}, {9, "Very high"},
                 {10, "Extreme"}, {15.9, "Extreme"}, {16, "-"},        {-0.9, "Low"},
                 {-1, "-"},       {-9999, "-"}};
    for (const auto& c : cases)
        EXPECT_EQ(MeteoMapping::stringForUVIndex(Number(c.index)), QString::fromLatin1(c.word))
            << c.index;
    EXPECT_EQ(MeteoMapping::stringForUVIndex(std::nullopt), QStringLiteral("Low"));
}

}  // namespace
}  // namespace zephyrix
