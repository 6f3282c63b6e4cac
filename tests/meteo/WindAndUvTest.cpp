#include <limits>

#include <gtest/gtest.h>

#include "meteo/MeteoMapping.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using testing::dataLines;

TEST(WindAndUv, DirectionsFallIntoSixteenSectors) {
    for (const QStringList& line : dataLines(QStringLiteral("meteo/wind_sectors.txt")))
        EXPECT_EQ(MeteoMapping::mapWindToSector(line[0].toInt(), line[1].toInt()), line[2].toInt())
            << qPrintable(line.join(u' '));
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
