#include "SunCalculations.h"

#include <array>
#include <cmath>
#include <limits>

#include "Circle.h"
#include "foundation/GregorianCalendar.h"
#include "foundation/NamedException.h"

namespace zephyrix {

namespace {

// Radians. The method is that of the "Almanac for Computers" (U.S. Naval Observatory). The short
// forms are deliberate: more digits would move events across a minute.
constexpr double quarterCircle = 1.5708;
constexpr double threeQuarterCircle = 4.71239;
constexpr double radiansPerDegree = 0.0174533;
constexpr double radiansPerHour = 0.261799;
constexpr double hoursPerRadian = 3.81972;

constexpr double pole = 90.0;                      // degrees
constexpr double nearSouthPole = -89.9;            // degrees, stands for the south pole and beyond
constexpr double nearNorthPole = 1.56905167;       // radians, stands for the north pole and beyond
constexpr double anomalyPerDay = 0.017202;         // radians, of the sun's mean anomaly
constexpr double anomalyAtYearStart = 0.0574039;   // radians, subtracted
constexpr double firstOrderCentre = 0.0334405;     // radians, equation of the centre
constexpr double secondOrderCentre = 0.000349066;  // radians
constexpr double perigee = 4.93289;                // radians, longitude of the sun's perigee
constexpr double oneArcSecond = 4.84814e-6;        // radians
constexpr double cosObliquity = 0.91746;
constexpr double sinObliquity = 0.39782;
constexpr double siderealRate = 0.0172028;  // radians a day, of sidereal against solar time
constexpr double siderealTimeAtYearStart = 1.73364;  // radians

constexpr double secondsPerDay = 86400.0;

struct TwilightZenith {
    int twilight;
    double cosine;
};
constexpr std::array twilightZeniths{
    TwilightZenith{SunCalculations::astronomicalTwilight, -0.309017},
    TwilightZenith{SunCalculations::nauticalTwilight, -0.207912},
    TwilightZenith{SunCalculations::civilTwilight, -0.104528},
};
constexpr double officialZenith = -0.0145439;  // cosine of 90 degrees 50 minutes

double cosineOfZenith(int twilight) {
    for (const TwilightZenith& zenith : twilightZeniths) {
        if (zenith.twilight == twilight)
            return zenith.cosine;
    }
    return officialZenith;
}

/// Radians; the poles themselves, where no hour angle exists, are moved a little away.
double latitudeInRadians(double latitude) {
    if (latitude >= pole)
        return nearNorthPole;
    return (latitude <= -pole ? nearSouthPole : latitude) * radiansPerDegree;
}

double onCircle(double angle) {
    const double rest = std::fmod(angle, twoPi);
    return rest < 0.0 ? rest + twoPi : rest;
}

/// Radians, [0, 2 pi): the sun's true longitude `t` days into the year.
double trueLongitude(double t) {
    const double M = t * anomalyPerDay - anomalyAtYearStart;
    const double L = onCircle(M + firstOrderCentre * std::sin(M) +
                              secondOrderCentre * std::sin(2.0 * M) + perigee);
    double wholeQuarters = 0.0;
    const bool onQuarter = std::modf(L / quarterCircle, &wholeQuarters) == 0.0;
    return onQuarter ? L + oneArcSecond : L;
}

/// Radians, in the same quarter of the circle as the longitude.
double rightAscension(double L) {
    const double alpha = std::atan2(cosObliquity * std::sin(L) / std::cos(L), 1.0);
    if (L > threeQuarterCircle)
        return alpha + twoPi;
    return L > quarterCircle ? alpha + pi : alpha;
}

/// The cosine of the sun's hour angle at the event; beyond -1 and 1 there is no event.
double cosineOfHourAngle(double L, double latitude, int twilight) {
    const double sinDeclination = sinObliquity * std::sin(L);
    const double declination =
        std::atan2(sinDeclination / std::sqrt(1.0 - sinDeclination * sinDeclination), 1.0);
    const double phi = latitudeInRadians(latitude);
    return (cosineOfZenith(twilight) - sinDeclination * std::sin(phi)) /
           (std::cos(declination) * std::cos(phi));
}

double doubleOrZero(const std::optional<Number>& number) {
    return number ? number->doubleValue() : 0.0;
}

}  // namespace

Instant SunCalculations::sunTimesforDate(Instant date, double longitude, double latitude,
                                         int timeType, int twilight, const QTimeZone& timeZone) {
    const GregorianCalendar calendar(timeZone);
    const int offset = calendar.secondsFromGMT(date);
    const bool isRise = timeType == rise;

    const double start = isRise ? quarterCircle : threeQuarterCircle;
    const double t = calendar.dayOfYear(date) + (start - longitude * radiansPerDegree) / twoPi;
    const double L = trueLongitude(t);
    const double cosH = cosineOfHourAngle(L, latitude, twilight);
    if (cosH < -1.0)
        raiseNullPhenomenon(QStringLiteral("sun"));
    if (cosH > 1.0)
        raiseNullPhenomenon(QStringLiteral("nosun"));

    const double setH = quarterCircle - std::atan2(cosH / std::sqrt(1.0 - cosH * cosH), 1.0);
    const double H = isRise ? twoPi - setH : setH;
    const double T = rightAscension(L) + H - siderealRate * t;
    const double local = onCircle(offset / 3600.0 * radiansPerHour +
                                  (T - siderealTimeAtYearStart - longitude * radiansPerDegree));
    const double hours = local * hoursPerRadian;
    if (!std::isfinite(hours))
        return Instant::fromSecondsSince1970(std::numeric_limits<double>::quiet_NaN());

    CalendarFields fields = calendar.fields(date);
    fields.hour = static_cast<int>(hours);
    const double minutesAndAHalf = (hours - static_cast<double>(fields.hour)) * 60.0 + 0.5;
    fields.minute = static_cast<int>(minutesAndAHalf);  // may be 60: the calendar rolls it over
    fields.second = 0;
    const Instant event = calendar.instant(fields);
    return event.addingSeconds(calendar.secondsFromGMT(event) - offset);
}

Instant SunCalculations::sunTimesforDate(Instant date, double longitude, double latitude,
                                         int timeType, const QTimeZone& timeZone) {
    return sunTimesforDate(date, longitude, latitude, timeType, officialHorizon, timeZone);
}

Instant SunCalculations::sunTimesforDate(Instant date, double longitude, double latitude,
                                         int TimeType) {
    return sunTimesforDate(date, longitude, latitude, TimeType, officialHorizon);
}

Instant SunCalculations::sunTimesforDate(Instant date, double longitude, double latitude,
                                         int TimeType, int Twilight) {
    return sunTimesforDate(date, longitude, latitude, TimeType, Twilight, defaultTimeZone());
}

Instant SunCalculations::sunTimesforDate(Instant date, const Location& location, int timeType) {
    return sunTimesforDate(date, doubleOrZero(location.longitude()),
                           doubleOrZero(location.latitude()), timeType,
                           timeZoneWithName(location.timezone().value_or(QString())));
}

bool SunCalculations::isDayLightAtDate(Instant date, double longitude, double latitude,
                                       const QTimeZone& timeZone) {
    const Instant sunrise = sunTimesforDate(date, longitude, latitude, rise, timeZone);
    const Instant sunset = sunTimesforDate(date, longitude, latitude, set, timeZone);
    if (sunrise < sunset)
        return sunrise < date && date < sunset;
    // The zone's midnight falls into the day: it is light before the set and again after the rise.
    if (date < sunset)
        return true;
    return sunrise < date && date < sunset.addingSeconds(secondsPerDay);
}

bool SunCalculations::isDayLightAtDate(Instant date, double longitude, double latitude) {
    return isDayLightAtDate(date, longitude, latitude, defaultTimeZone());
}

QString SunCalculations::nullPhenomenon() const {
    const std::scoped_lock lock(mutex_);
    return nullPhenomenon_;
}

void SunCalculations::setNullPhenomenon(const QString& nullPhenomenon) {
    const std::scoped_lock lock(mutex_);
    nullPhenomenon_ = nullPhenomenon;
}

void SunCalculations::raiseNullPhenomenon(const QString& reason) {
    setNullPhenomenon(reason);
    throw NamedException(QStringLiteral("NullPhenomenon"), reason);
}

}  // namespace zephyrix
