#include <limits>

#include <gtest/gtest.h>

#include "meteo/MeteoMapping.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

TEST(WindAndUv, DirectionsFallIntoSixteenSectors) {
    forEachLine("meteo/wind_sectors.txt", [](const DataLine& line) {
        EXPECT_EQ(MeteoMapping::mapWindToSector(line.integer(0), line.integer(1)), line.integer(2));
    });
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
    forEachLine("meteo/uv_words.tsv", [](const DataLine& line) {
        EXPECT_EQ(MeteoMapping::stringForUVIndex(Number(line.number(0))), line[1]);
    });
    EXPECT_EQ(MeteoMapping::stringForUVIndex(std::nullopt), QStringLiteral("Low"));
}

}  // namespace
}  // namespace zephyrix
