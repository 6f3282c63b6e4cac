#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "meteo/MeteoMapping.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using testing::dataLines;

constexpr double missing = MeteoMapping::missingValue;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct UnitTextCase {
    QString (*operation)(UnitCode);
    UnitCode code;
    const char* text;
};

TEST(Units, ACodeOutsideOfItsTableHasTheTextOfTheBaseUnit) {
    const UnitTextCase cases[] = {
        {MeteoMapping::tempUnitForUnit, 3, "°C"},
        {MeteoMapping::tempUnitForUnit, -1, "°C"},
        {MeteoMapping::accessibleTempUnitForUnit, 2, "Kelvin"},
        {MeteoMapping::accessibleTempUnitForUnit, 99, "degrees Celsius"},
        {MeteoMapping::windUnitForUnit, 4, "mph"},
        {MeteoMapping::windUnitForUnit, 5, "kn"},
        {MeteoMapping::windUnitForUnit, -1, "kn"},
        {MeteoMapping::pressureUnitForUnit, 3, "hPa"},
        {MeteoMapping::pressureUnitForUnit, std::numeric_limits<UnitCode>::min(), "hPa"},
        {MeteoMapping::precipitationUnitForUnit, 2, "mm"},
        {MeteoMapping::altitudeUnitForUnit, -1, "m"},
    };
    for (const UnitTextCase& c : cases)
        EXPECT_EQ(c.operation(c.code), QString::fromUtf8(c.text)) << c.text << " for " << c.code;
}

TEST(Units, TemperaturesGoByCelsius) {
    for (const QStringList& line : dataLines(QStringLiteral("meteo/temperatures.txt")))
        EXPECT_NEAR(
            MeteoMapping::mapTemperature(line[0].toDouble(), line[1].toInt(), line[2].toInt()),
            line[3].toDouble(), 1e-9)
            << qPrintable(line.join(u' '));
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
    const struct {
        double in;
        double force;
        double knots;
    } cases[] = {
        {-0.001, missing, missing},
        {-0.0, 0, 3},
        {0.5, 0, 3},
        {0.999, 0, 3},
        {1.0, 1, 3},
        {11.0, 4, 63},
        {11.001, 4, missing},
        {12.0, 4, missing},
        {12.001, 4, 63},
        {1e300, 12, 63},
        {missing, missing, missing},
        {notANumber, missing, missing},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(MeteoMapping::mapKnotsToUnit(0, c.in), c.force) << c.in << " knots";
        EXPECT_EQ(MeteoMapping::mapUnitToKnots(0, c.in), c.knots) << "force " << c.in;
    }
}

}  // namespace
}  // namespace zephyrix
