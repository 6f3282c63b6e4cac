#include <algorithm>
#include <cmath>
#include <iostream>

#include <gtest/gtest.h>

#include "astro/AstroCalculations.h"
#include "astro/CoordinateTransforms.h"
#include "astro/SunAndMoon.h"
#include "foundation/Angle.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

double degrees(double radians) {
    return radians / deg2rad(1.0);
}

/// Degrees between two directions on a sphere, each given by longitude and latitude in degrees.
double separation(double lon1, double lat1, double lon2, double lat2) {
    const FullCoordinates a = EquPolar2Cart(deg2rad(lon1), deg2rad(lat1), 1.0);
    const FullCoordinates b = EquPolar2Cart(deg2rad(lon2), deg2rad(lat2), 1.0);
    return 2.0 * degrees(std::asin(std::hypot(a.x - b.x, a.y - b.y, a.z - b.z) / 2.0));
}

TEST(JulianDay, AgreesWithTextbook) {
    forEachLine("astro/julian-days.tsv", [](const DataLine& line) {
        const auto instant = Instant::fromSecondsSince1970(line.number(1));
        EXPECT_NEAR(AstroCalculations::fastJulian(instant), line.number(0), 1e-8);
        EXPECT_NEAR(AstroCalculations::julianTimeWithDate(instant), line.number(0), 1e-8);
    });
}

TEST(JulianDay, FromFieldsAgreesWithSecondsThroughTwoCenturies) {
    double worst = 0.0;
    for (double seconds = -2'200'000'000.0; seconds < 4'100'000'000.0; seconds += 40'237.0) {
        const auto instant = Instant::fromSecondsSince1970(seconds);
        worst = std::max(worst, std::abs(AstroCalculations::julianTimeWithDate(instant) -
                                         AstroCalculations::fastJulian(instant)));
    }
    EXPECT_LT(worst, 1e-9);
    const auto noon = Instant::fromSecondsSince1970(946728000.0);
    EXPECT_EQ(AstroCalculations::JulianDayWithDate(noon.addingSeconds(-1)),
              2451545.0 - 1.0 / 86400.0);
}

// J. Meeus, examples 12.a, 12.b, 25.a and 47.a.
TEST(Positions, AgreeWithTextbook) {
    EXPECT_NEAR(greenwichSiderealTime(2446895.5), 13 + 10 / 60.0 + 46.3668 / 3600, 2e-6);
    EXPECT_NEAR(greenwichSiderealTime(2446896.30625), 8 + 34 / 60.0 + 57.0896 / 3600, 2e-6);

    const FullCoordinates sun = sunPosition(2448908.5, 0.0, 0.0);
    EXPECT_NEAR(degrees(sun.lon), 199.90895, 0.01);
    EXPECT_NEAR(degrees(sun.ra), 198.38083, 0.01);
    EXPECT_NEAR(degrees(sun.dec), -7.78507, 0.01);
    EXPECT_NEAR(sun.distance, 0.99766 * 149597870.7, 20'000.0);
    EXPECT_NEAR(degrees(sun.parallax) * 3600.0, 8.794 / 0.99766, 0.01);
    EXPECT_NEAR(degrees(sun.diameter) * 60.0, 31.99 / 0.99766, 0.05);

    const double moonDay = 2448724.5;
    const FullCoordinates moon =
        moonPosition(sunPosition(moonDay, 0.0, 0.0), moonDay, FullCoordinates{}, 0.0);
    EXPECT_NEAR(degrees(moon.lon), 133.162655, 0.3);
    EXPECT_NEAR(degrees(moon.lat), -3.229126, 0.1);
    EXPECT_NEAR(degrees(moon.ra), 134.688470, 0.3);
    EXPECT_NEAR(degrees(moon.dec), 13.768368, 0.1);
    EXPECT_NEAR(moon.distance, 368409.7, 6000.0);
    EXPECT_NEAR(degrees(moon.parallax), 0.991990, 0.015);
    EXPECT_NEAR(moon.phase, 0.6786, 0.01);
}

TEST(Positions, AgreeWithAnotherImplementation) {
    double worstSun = 0.0;
    double worstMoon = 0.0;
    double worstHorizontal = 0.0;
    double worstDistance = 0.0;
    const auto rows = dataLines(QStringLiteral("astro/positions.tsv"));
    for (const QStringList& row : rows) {
        const auto value = [&](int column) { return row[column].toDouble(); };
        const Instant instant = Instant::fromSecondsSince1970(value(0));
        const FullCoordinates sun = sunPosition(AstroCalculations::fastJulian(instant), 0.0, 0.0);
        const FullCoordinates moon =
            AstroCalculations::moonPositionWithDate(instant, {value(1), value(2)});
        worstSun =
            std::max(worstSun, separation(degrees(sun.ra), degrees(sun.dec), value(3), value(4)));
        worstMoon =
            std::max(worstMoon, separation(degrees(moon.raGeocentric), degrees(moon.decGeocentric),
                                           value(5), value(6)));
        worstDistance = std::max(worstDistance, std::abs(moon.distance / value(7) - 1.0));
        EXPECT_NEAR(moon.phase, value(8), 0.01);
        // The table is without air: up to 0.6 degrees of height are due to refraction.
        worstHorizontal =
            std::max(worstHorizontal, separation(moon.az, moon.alt, value(9), value(10)));
    }
    EXPECT_LT(worstSun, 0.05);
    EXPECT_LT(worstMoon, 0.3);
    EXPECT_LT(worstDistance, 0.02);
    EXPECT_LT(worstHorizontal, 1.0);
    std::cout << rows.size() << " instants, worst errors: sun " << worstSun << " degrees, moon "
              << worstMoon << " degrees, moon seen from a place " << worstHorizontal
              << " degrees, moon's distance " << worstDistance * 100 << " %\n";
}

TEST(Positions, MoonOfADateIsRounded) {
    const auto isWhole = [](double value) { return std::abs(value - std::round(value)) < 1e-6; };
    for (int number = 0; number < 200; ++number) {
        const FullCoordinates moon = AstroCalculations::moonPositionWithDate(
            Instant::fromSecondsSince1970(number * 1234567.0), {52.5, 13.4});
        EXPECT_TRUE(isWhole(moon.az * 100.0) && moon.az >= 0.0 && moon.az <= 360.0);
        EXPECT_TRUE(isWhole(moon.alt * 10.0));
        EXPECT_TRUE(isWhole(moon.moonAge * 1000.0) && moon.moonAge <= 360.0);
    }
}

TEST(Positions, SunHasNoHeightOnTheEquatorNorWithoutSiderealTime) {
    EXPECT_EQ(sunPosition(2451545.3, 0.0, 1.0).alt, 0.0);
    EXPECT_EQ(sunPosition(2451545.3, 1.0, 0.0).alt, 0.0);
    EXPECT_NE(sunPosition(2451545.3, 1.0, 1.0).alt, 0.0);
    const FullCoordinates moon =
        moonPosition(sunPosition(2451545.3, 0.0, 1.0), 2451545.3, {.radius = 6378.0}, 1.0);
    EXPECT_NE(moon.raGeocentric, moon.ra);
    EXPECT_EQ(moon.raTopocentric, moon.ra);
}

// The ellipsoid by its definition: the surface normal at the observer has the geographic latitude.
TEST(Positions, ObserverStandsOnTheEllipsoid) {
    constexpr double a = 6378.137;
    constexpr double b = 6356.752314245;
    for (double latitude = -90.0; latitude <= 90.0; latitude += 7.5) {
        const FullCoordinates observer =
            Observer2EquCart(deg2rad(30.0), deg2rad(latitude), 0.0, 3.0);
        const double equatorial = std::hypot(observer.x, observer.y);
        EXPECT_NEAR(equatorial * equatorial / (a * a) + observer.z * observer.z / (b * b), 1.0,
                    1e-9);
        EXPECT_NEAR(degrees(std::atan2(observer.z / (b * b), equatorial / (a * a))), latitude,
                    1e-6);
        EXPECT_NEAR(std::hypot(equatorial, observer.z), observer.radius, 1e-9);
        // 30 degrees east, turned by three hours; at the poles rounding decides.
        const double direction = degrees(std::atan2(observer.y, observer.x));
        EXPECT_TRUE(std::abs(latitude) == 90.0 || std::abs(direction - 75.0) < 1e-9) << direction;
    }
}

TEST(Refraction, LiftsByWhatATextbookSaysAboveFifteenDegrees) {
    // G. G. Bennett's formula for true altitude, in minutes of arc, at 1010 hPa and 10 degrees.
    for (double altitude = 15.5; altitude < 85.0; altitude += 1.0) {
        const double minutes = 1.02 / std::tan(deg2rad(altitude + 10.3 / (altitude + 5.11)));
        EXPECT_NEAR(Refraction(deg2rad(altitude)) * 60.0, minutes, 0.08) << altitude;
    }
}

// Below, the radians of the altitude are taken for degrees, so that all of it is lifted as if it
// stood near the horizon.
TEST(Refraction, IsThatOfTheHorizonUpToFifteenDegrees) {
    for (const double altitude : {-2.0, -1.0, 0.0, 5.0, 15.0}) {
        const double lift = Refraction(deg2rad(altitude));
        EXPECT_TRUE(lift > 0.4 && lift < 0.6) << altitude << ": " << lift;
    }
    EXPECT_LT(Refraction(deg2rad(15.001)), 0.07);
    EXPECT_EQ(Refraction(deg2rad(-2.5)), 0.0);
    EXPECT_EQ(Refraction(deg2rad(90.0)), 0.0);
    EXPECT_GT(Refraction(deg2rad(89.0)), 0.0);
}

}  // namespace
}  // namespace zephyrix
