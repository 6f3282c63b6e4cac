#include "AstroCalculations.h"

#include <cmath>

#include <QTimeZone>

#include "Circle.h"
#include "CoordinateTransforms.h"
#include "SunAndMoon.h"
#include "foundation/Angle.h"
#include "foundation/GregorianCalendar.h"

namespace zephyrix {

namespace {

constexpr double julianDayOf1970 = 2440587.5;  // 1970-01-01 00:00 UTC
constexpr double secondsPerDay = 86400.0;
constexpr double secondsPerHalfDay = 43200.0;
constexpr double degreesPerRadian = 57.29577951308232;
constexpr double degreesPerHour = 15.0;        // of sidereal time
constexpr double julianDayOffset = 1721115.0;  // of the day count of julianTimeWithDate()

double roundedTo(double value, double stepsPerUnit) {
    return std::round(value * stepsPerUnit) / stepsPerUnit;
}

double inDegrees(double radians) {
    return radians * 180.0 / pi;
}

}  // namespace

double AstroCalculations::fastJulian(Instant date) {
    return date.secondsSince1970() / secondsPerDay + julianDayOf1970;
}

double AstroCalculations::julianTimeWithDate(Instant date) {
    const CalendarFields utc = GregorianCalendar(QTimeZone::utc()).fields(date);
    const auto year = static_cast<double>(utc.year);
    const auto month = static_cast<double>(utc.month);
    const auto day = static_cast<double>(utc.day);
    const auto hour = static_cast<double>(utc.hour);

    const double y = year + (month - 2.85) / 12.0;
    double J = std::trunc(std::trunc(day + std::trunc(367.0 * y) - 1.75 * std::trunc(y)) -
                          0.75 * std::trunc(y / 100.0)) +
               julianDayOffset;
    // A Julian day begins at noon.
    double s = 3600.0 * hour - secondsPerHalfDay;
    if (utc.hour < 12) {
        J -= 1.0;
        s = secondsPerHalfDay + 3600.0 * hour;
    }
    s += static_cast<double>(60 * utc.minute + utc.second);
    return J + s / secondsPerDay;
}

double AstroCalculations::JulianDayWithDate(Instant date) {
    return julianTimeWithDate(date);
}

FullCoordinates AstroCalculations::moonPositionWithDate(Instant date,
                                                        const Coordinate& coordinates) {
    const double julianDay = fastJulian(date);
    const double gmst = greenwichSiderealTime(julianDay);
    const double latitude = deg2rad(coordinates.latitude);
    const FullCoordinates observer =
        Observer2EquCart(deg2rad(coordinates.longitude), latitude, 0.0, gmst);
    const double lmstHours = modulo(gmst + observer.lon * degreesPerRadian / degreesPerHour, 24.0);
    const double lmst = deg2rad(lmstHours * degreesPerHour);

    const FullCoordinates sun = sunPosition(julianDay, latitude, lmst);
    FullCoordinates moon = moonPosition(sun, julianDay, observer, lmst);
    moon.az = roundedTo(inDegrees(moon.az), 100.0);
    moon.alt = roundedTo(inDegrees(moon.alt) + Refraction(moon.alt), 10.0);
    moon.moonAge = roundedTo(inDegrees(moon.moonAge), 1000.0);
    return moon;
}

}  // namespace zephyrix
