#include <algorithm>
#include <array>
#include <cmath>
#include <iostream>
#include <limits>

#include <gtest/gtest.h>

#include "foundation/Angle.h"
#include "meteo/MeteoMapping.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

constexpr double missing = MeteoMapping::missingValue;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

void expectWorstError(double worst, double limit, const char* unit) {
    std::cout << "worst error: " << worst << ' ' << unit << '\n';
    EXPECT_LE(worst, limit);
}

TEST(Formulas, WindChillIsThatOfThePublishedChart) {
    double worst = 0.0;
    for (const QStringList& line : dataLines(QStringLiteral("meteo/windchill.txt"))) {
        const double knots = line[0].toDouble() / 1.852;
        const double chill = MeteoMapping::windchill(line[1].toDouble(), knots);
        worst = std::max(worst, std::abs(chill - line[2].toDouble()));
    }
    expectWorstError(worst, 0.5, "degrees, of a chart in whole degrees");
}

TEST(Formulas, WindChillBeginsAboveFourKnotsAndUpToTenDegrees) {
    EXPECT_EQ(MeteoMapping::windchill(-5.0, 4.0), -5.0);
    EXPECT_LT(MeteoMapping::windchill(-5.0, 4.001), -7.0);
    EXPECT_NEAR(MeteoMapping::windchill(-5.0, 10.0), -11.29, 0.005);
    EXPECT_LT(MeteoMapping::windchill(10.0, 30.0), 6.0);
    EXPECT_EQ(MeteoMapping::windchill(10.001, 30.0), 10.001);
    EXPECT_EQ(MeteoMapping::windchill(missing, missing), missing);
}

TEST(Formulas, SaturationPressureAgreesWithGoffAndGratch) {
    double worst = 0.0;
    for (const QStringList& line : dataLines(QStringLiteral("meteo/vapour_pressure.txt"))) {
        const double published = line[2].toDouble();
        const double ours =
            MeteoMapping::e_vap(line[1].toDouble(), line[0] == QLatin1String("ice"));
        worst = std::max(worst, std::abs(ours / published - 1.0));
    }
    expectWorstError(worst * 100.0, 0.6, "percent");
}

TEST(Formulas, SaturationPressureHasItsRanges) {
    forEachLine("meteo/vapour_pressure_ranges.tsv", [](const DataLine& line) {
        EXPECT_DOUBLE_EQ(MeteoMapping::e_vap(line.number(0), line.isYes(1)), line.number(2));
    });
    EXPECT_GT(MeteoMapping::e_vap(-45.0, false), 0.0);
    EXPECT_GT(MeteoMapping::e_vap(100.0, false), 1000.0);
    EXPECT_GT(MeteoMapping::e_vap(-65.0, true), 0.0);
    EXPECT_GT(MeteoMapping::e_vap(0.01, true), 6.11);
}

TEST(Formulas, RelativeHumidityIsWholePercentUpToAHundred) {
    forEachLine("meteo/humidity.tsv", [](const DataLine& line) {
        EXPECT_EQ(MeteoMapping::relHumForTemperature(line.number(0), line.number(1)),
                  line.integer(2));
    });
}

TEST(Formulas, ComfortTemperatureChangesItsFormulaAtZeroAndThirtyOne) {
    const auto comfort = MeteoMapping::comfortTempWithTemperature;
    const auto humidex = [](double t, double td) {
        return t + 5.0 / 9.0 * (MeteoMapping::e_vap(td, false) - 10.0);
    };
    EXPECT_EQ(comfort(-0.1, 20.0, -5.0), MeteoMapping::windchill(-0.1, 20.0));
    EXPECT_DOUBLE_EQ(comfort(0.0, 20.0, -5.0), MeteoMapping::windchill(0.0, 20.0));
    EXPECT_DOUBLE_EQ(comfort(31.0, 20.0, 25.0), humidex(31.0, 25.0));
    EXPECT_DOUBLE_EQ(comfort(30.0, 20.0, 25.0), humidex(30.0, 25.0));
    EXPECT_DOUBLE_EQ(comfort(15.0, 3.0, 10.0), (humidex(15.0, 10.0) + 15.0) / 2.0);
    EXPECT_GT(comfort(30.9, 3.0, 25.0), humidex(30.9, 25.0)) << "weighs more than 1 above 30";

    EXPECT_NEAR(comfort(31.0, 3.0, -45.1), 31.0 - 10009.0 * 5.0 / 9.0, 1e-9)
        << "a missing vapour pressure is not noticed";
    EXPECT_EQ(comfort(missing, 3.0, 10.0), missing);
    EXPECT_EQ(comfort(20.0, missing, 10.0), missing);
    EXPECT_EQ(comfort(20.0, 3.0, missing), missing);
    EXPECT_TRUE(std::isnan(comfort(notANumber, 3.0, 10.0)));
}

TEST(Formulas, PressureReductionUsesTheExchangedKelvin) {
    // Reckoned by hand with 40 decimal digits.
    EXPECT_NEAR(MeteoMapping::qffForElevationVaporPressure(100, 10, 15, 1000), 986.79558310656,
                1e-9);
    EXPECT_NEAR(MeteoMapping::qffForElevationVaporPressure(520.5, 8.5, -3.2, 951.3),
                891.76021215225, 1e-9);
    EXPECT_EQ(MeteoMapping::qffForElevationVaporPressure(0, 10, 15, 1013.2), 1013.2);
}

TEST(Formulas, StationPressureIsTheInverse) {
    for (const double elevation : {-400.0, 34.0, 1500.0, 2962.0}) {
        const double qff = MeteoMapping::qffForElevationTd(elevation, 4.0, 12.0, 950.0);
        EXPECT_NEAR(MeteoMapping::qfeForElevationTd(elevation, 4.0, 12.0, qff), 950.0, 1e-9);
        EXPECT_EQ(qff, MeteoMapping::qffForElevationVaporPressure(
                           elevation, MeteoMapping::e_vap(4.0, false), 12.0, 950.0));
    }
}

struct Point {
    double latitude;
    double longitude;
};

struct Place {
    Point at;
    [[nodiscard]] Point coordinate() const { return at; }
};

TEST(Formulas, DistancesAreThoseOfOtherSources) {
    double worst = 0.0;
    for (const QStringList& line : dataLines(QStringLiteral("meteo/distances.txt"))) {
        const Place from{{line[0].toDouble(), line[1].toDouble()}};
        const Place to{{line[2].toDouble(), line[3].toDouble()}};
        const double km = MeteoMapping::distanceFromPoint(from, to);
        worst = std::max(worst, std::abs(km - line[4].toDouble()));
    }
    expectWorstError(worst, 0.003, "km, of a reference in millionths of a radian");
}

TEST(Formulas, InterpolationIsAStraightLineThroughTheFirstTwoValues) {
    const auto at = [](double seconds) { return Instant::fromSecondsSince1970(seconds); };
    const std::array values{10.0, 20.0, 1000.0};
    const std::array timestamps{at(1433152800.0), at(1433156400.0), at(0.0)};
    const auto valueAfter = [&](double seconds) {
        return MeteoMapping::linearInterpolationForDate(timestamps[0].addingSeconds(seconds),
                                                        values, timestamps);
    };
    EXPECT_EQ(valueAfter(0.0), 10.0);
    EXPECT_EQ(valueAfter(1800.0), 15.0);
    EXPECT_EQ(valueAfter(-3600.0), 0.0);
    EXPECT_EQ(valueAfter(7200.0), 30.0);

    const std::array equal{at(5.0), at(5.0)};
    EXPECT_TRUE(std::isinf(MeteoMapping::linearInterpolationForDate(at(6.0), values, equal)));
    EXPECT_TRUE(std::isnan(MeteoMapping::linearInterpolationForDate(at(5.0), values, equal)));
    EXPECT_DEATH(static_cast<void>(MeteoMapping::linearInterpolationForDate(
                     at(5.0), std::span(values).first(1), timestamps)),
                 "fatal error: an interpolation");
}

double radiansBySubtraction(double degrees) {
    while (degrees > 360.0)
        degrees -= 360.0;
    return deg2rad(degrees);
}

TEST(Formulas, RadiansTakesWholeTurnsOff) {
    for (const double degrees : {0.0, 0.5, 359.9, 360.0, 360.5, 720.0, 720.5, 1080.0, 123456.789,
                                 -30.0, -725.0, std::nextafter(360.0, 400.0)})
        EXPECT_EQ(MeteoMapping::radians(degrees), radiansBySubtraction(degrees)) << degrees;
    EXPECT_DOUBLE_EQ(MeteoMapping::radians(-30.0), -std::acos(-1.0) / 6.0);
    EXPECT_LE(MeteoMapping::radians(1e300), 2.0 * std::acos(-1.0)) << "and it ends";
    EXPECT_DOUBLE_EQ(deg2rad(720.5), 4.0 * std::acos(-1.0) + deg2rad(0.5));
}

}  // namespace
}  // namespace zephyrix
