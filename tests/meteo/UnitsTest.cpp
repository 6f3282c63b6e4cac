#include <cmath>

#include <QHash>
#include <gtest/gtest.h>

#include "meteo/MeteoMapping.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

constexpr double missing = MeteoMapping::missingValue;

TEST(Units, ACodeOutsideOfItsTableHasTheTextOfTheBaseUnit) {
    const QHash<QString, QString (*)(UnitCode)> operations{
        {QStringLiteral("temp"), MeteoMapping::tempUnitForUnit},
        {QStringLiteral("accessibleTemp"), MeteoMapping::accessibleTempUnitForUnit},
        {QStringLiteral("wind"), MeteoMapping::windUnitForUnit},
        {QStringLiteral("pressure"), MeteoMapping::pressureUnitForUnit},
        {QStringLiteral("precipitation"), MeteoMapping::precipitationUnitForUnit},
        {QStringLiteral("altitude"), MeteoMapping::altitudeUnitForUnit}};
    forEachLine("meteo/unit_texts.tsv", [&](const DataLine& line) {
        ASSERT_TRUE(operations.contains(line[0]));
        EXPECT_EQ(operations[line[0]](line.integer(1)), line[2]);
    });
}

TEST(Units, TemperaturesGoByCelsius) {
    forEachLine("meteo/temperatures.txt", [](const DataLine& line) {
        EXPECT_NEAR(MeteoMapping::mapTemperature(line.number(0), line.integer(1), line.integer(2)),
                    line.number(3), 1e-9);
    });
    for (const auto operation : {MeteoMapping::celsiusToFahrenheit, MeteoMapping::celsiusToKelvin,
                                 MeteoMapping::fahrenheitToCelsius, MeteoMapping::kelvinToCelsius})
        EXPECT_EQ(operation(missing), missing);
}

TEST(Units, LengthsAndPressuresAreThoseOfTheirDefinitions) {
    EXPECT_NEAR(MeteoMapping::mmToInch(25.4), 1.0, 1e-11);
    EXPECT_NEAR(MeteoMapping::metersToFeet(0.3048), 1.0, 1e-11);
    EXPECT_NEAR(MeteoMapping::kmToMiles(42.195), 26.2188, 1e-4);
    EXPECT_NEAR(MeteoMapping::hPaToTorr(1013.25), 760.0, 1e-9);
    EXPECT_NEAR(MeteoMapping::hPaToInHg(1013.25), 29.921, 1e-3);
    EXPECT_NEAR(MeteoMapping::hPaToInHg(missing), -295.27, 0.01) << "has no missing value";

    EXPECT_EQ(MeteoMapping::mapHpaToUnit(1, 1000.0), MeteoMapping::hPaToInHg(1000.0));
    EXPECT_EQ(MeteoMapping::mapHpaToUnit(2, 1000.0), MeteoMapping::hPaToTorr(1000.0));
    EXPECT_EQ(MeteoMapping::mapHpaToUnit(3, 1000.0), 1000.0);
    EXPECT_EQ(MeteoMapping::mapMMToUnit(1, 10.0), MeteoMapping::mmToInch(10.0));
    EXPECT_EQ(MeteoMapping::mapMMToUnit(2, 10.0), 10.0);
    EXPECT_EQ(MeteoMapping::mapMetersToUnit(1, 10.0), MeteoMapping::metersToFeet(10.0));
    EXPECT_EQ(MeteoMapping::mapMetersToUnit(0, 10.0), 10.0);
}

TEST(Units, WindGoesThereAndBackByItsFactor) {
    const struct {
        UnitCode unit;
        double ofTenKnots;
    } cases[] = {{1, 10.0}, {2, 18.52}, {3, 5.2}, {4, 11.5077945}, {5, 10.0}, {-1, 10.0}};
    for (const auto& c : cases) {
        EXPECT_DOUBLE_EQ(MeteoMapping::mapKnotsToUnit(c.unit, 10.0), c.ofTenKnots) << c.unit;
        EXPECT_DOUBLE_EQ(MeteoMapping::mapUnitToKnots(c.unit, c.ofTenKnots), 10.0) << c.unit;
        EXPECT_EQ(MeteoMapping::mapKnotsToUnit(c.unit, missing), missing);
        EXPECT_EQ(MeteoMapping::mapUnitToKnots(c.unit, missing), missing);
    }
}

TEST(Units, BeaufortClassesEndAtTheirUpperLimit) {
    const double upperKnots[] = {3, 6, 10, 15, 21, 27, 33, 40, 47, 55, 63};
    double force = 1.0;
    for (const double upper : upperKnots) {
        const double above = std::nextafter(upper, 1e9);
        EXPECT_EQ(MeteoMapping::mapKnotsToUnit(0, upper), force);
        EXPECT_EQ(MeteoMapping::mapKnotsToUnit(0, above), force + 1.0);
        EXPECT_EQ(MeteoMapping::mapUnitToKnots(0, force), upper);
        EXPECT_EQ(MeteoMapping::mapUnitToKnots(0, std::nextafter(force, 0.0)), upper);
        force += 1.0;
    }
}

TEST(Units, BeaufortHasItsIrregularEnds) {
    forEachLine("meteo/beaufort.tsv", [](const DataLine& line) {
        EXPECT_EQ(MeteoMapping::mapKnotsToUnit(0, line.number(0)), line.number(1));
        EXPECT_EQ(MeteoMapping::mapUnitToKnots(0, line.number(0)), line.number(2));
    });
}

}  // namespace
}  // namespace zephyrix
