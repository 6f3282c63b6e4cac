#include <algorithm>

#include "MeteoMapping.h"
#include "astro/SunCalculations.h"
#include "foundation/NamedException.h"
#include "foundation/TimeZone.h"
#include "model/Location.h"
#include "model/QKTimeRange.h"

namespace zephyrix {

namespace {

constexpr double secondsPerDay = 86400.0;

/// A stretch of time; seconds since 1970.
struct Span {
    double start;
    double end;
};

/// Sunrise to sunset of one day; seconds since 1970.
struct SunDay {
    double rise;
    double set;

    friend bool operator==(const SunDay&, const SunDay&) = default;
};

double secondsOf(const std::optional<Instant>& instant) {
    return instant.value_or(Instant()).secondsSince1970();
}

double degreesOf(const std::optional<Number>& degrees) {
    return degrees ? degrees->doubleValue() : 0.0;
}

SunDay sunDayAt(double seconds, const Location& location) {
    const QTimeZone zone = timeZoneWithName(location.timezone().value_or(QString()));
    const Instant date = Instant::fromSecondsSince1970(seconds);
    const auto time = [&](int event) {
        return SunCalculations()
            .sunTimesforDate(date, degreesOf(location.longitude()), degreesOf(location.latitude()),
                             event, zone)
            .secondsSince1970();
    };
    return {.rise = time(SunCalculations::rise), .set = time(SunCalculations::set)};
}

/// For a span that begins on one sun day and ends on the next. Not limited to 0 and more, and a
/// span from one night into the next counts its second evening too: both are deliberate, the
/// estimates of a day from noon to noon or from midnight to midnight do not meet them.
double overTwoDays(const Span& span, const SunDay& first, const SunDay& second) {
    double daylight = first.rise > span.start ? -(first.rise - span.start) : 0.0;
    if (second.rise < span.end)
        daylight += span.end - second.rise;
    if (first.set > span.start)
        daylight += first.set - span.start;
    else if (second.set > span.start && second.set < span.end)
        daylight += second.set - span.start;
    return daylight;
}

double withinOneDay(const Span& span, const SunDay& day) {
    // A set before the rise of the same computation belongs to the rise of the day before.
    const double rise = day.set < day.rise ? day.rise - secondsPerDay : day.rise;
    double daylight = span.end - span.start;
    if (rise > span.start)
        daylight -= rise - span.start;
    if (day.set < span.end)
        daylight -= span.end - day.set;
    return std::max(daylight, 0.0);
}

/// The share of the daylight in which the sun shines, by eighths of cloud.
double sunshineShare(double n) {
    if (n <= 1.0)
        return 1.0;
    return n < 7.0 ? 1.0 - 0.125 * n : 0.0;
}

}  // namespace

double MeteoMapping::astronomicSuntimeForRange(const QKTimeRange& range, const Location& location) {
    const Span span{.start = secondsOf(range.startDtg()), .end = secondsOf(range.endDtg())};
    if (span.end - span.start > secondsPerDay)
        throw NamedException(QStringLiteral("IntervalTooLongException"),
                             QStringLiteral("intervals may only cover up to 24h"),
                             {{QStringLiteral("range"), QVariant::fromValue(range)}});
    const SunDay first = sunDayAt(span.start, location);
    const SunDay second = sunDayAt(span.end, location);
    if (span.start > second.set)
        return 0.0;
    return first == second ? withinOneDay(span, first) : overTwoDays(span, first, second);
}

double MeteoMapping::sunTimeForRange(const QKTimeRange& range, double n, const Location& location) {
    return sunshineShare(n) * astronomicSuntimeForRange(range, location);
}

}  // namespace zephyrix
