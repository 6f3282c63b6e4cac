
#include <gtest/gtest.h>

#include "astro/SunCalculations.h"
#include "foundation/GregorianCalendar.h"
#include "foundation/NamedException.h"
#include "meteo/MeteoMapping.h"
#include "model/LocationResult.h"
#include "model/QKTimeRange.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

constexpr double hour = 3600.0;
constexpr double day = 86400.0;

LocationResult berlin() {
    return LocationResult::defaultSearchResult();
}

/// A range from an hour of 2024 June 10 in Berlin, for some hours.
QKTimeRange range(double fromHour, double hours) {
    const Instant midnight = GregorianCalendar(timeZoneWithName(QStringLiteral("Europe/Berlin")))
                                 .instant({.year = 2024, .month = 6, .day = 10});
    QKTimeRange result;
    result.setStartDtg(midnight.addingSeconds(fromHour * hour));
    result.setEndDtg(midnight.addingSeconds((fromHour + hours) * hour));
    return result;
}

double daylight(const QKTimeRange& range) {
    return MeteoMapping::astronomicSuntimeForRange(range, berlin());
}

/// The same by asking each half minute whether it is day.
double countedDaylight(const QKTimeRange& range) {
    constexpr double step = 30.0;
    const LocationResult place = berlin();
    SunCalculations sun;
    double total = 0.0;
    for (Instant date = range.startDtg()->addingSeconds(step / 2); date < *range.endDtg();
         date = date.addingSeconds(step))
        total += sun.isDayLightAtDate(date, place.longitude()->doubleValue(),
                                      place.latitude()->doubleValue(), place.objTimeZone())
                     ? step
                     : 0.0;
    return total;
}

TEST(SunTime, IsWhatCountingHalfMinutesGives) {
    forEachLine("meteo/day_ranges.tsv", [](const DataLine& line) {
        const QKTimeRange hours = range(line.number(0), line.number(1));
        EXPECT_NEAR(daylight(hours), countedDaylight(hours), 60.0);
    });
}

TEST(SunTime, NightToNightCountsTheSecondEveningToo) {
    // From after one set until after the next: the time from the rise, and that until the set.
    const QKTimeRange nights = range(22, 24);
    const LocationResult place = berlin();
    SunCalculations sun;
    const Instant rise = sun.sunTimesforDate(*nights.endDtg(), place, SunCalculations::rise);
    const Instant set = sun.sunTimesforDate(*nights.endDtg(), place, SunCalculations::set);
    EXPECT_EQ(daylight(nights),
              nights.endDtg()->secondsSince(rise) + set.secondsSince(*nights.startDtg()));
    // Over midnight alone nothing is left, but for what remains until the rise.
    EXPECT_LE(daylight(range(23, 2)), 0.0);
}

TEST(SunTime, RangesUpToADayAreAllowed) {
    QKTimeRange tooLong = range(6, 24);
    EXPECT_NO_THROW((void)daylight(tooLong));
    tooLong.setEndDtg(tooLong.endDtg()->addingSeconds(0.001));
    try {
        (void)MeteoMapping::sunTimeForRange(tooLong, 8.0, berlin());
        FAIL();
    } catch (const NamedException& exception) {
        EXPECT_EQ(exception.name(), QStringLiteral("IntervalTooLongException"));
        EXPECT_EQ(exception.reason(), QStringLiteral("intervals may only cover up to 24h"));
        EXPECT_EQ(exception.userInfo().value(QStringLiteral("range")).value<QKTimeRange>(),
                  tooLong);
    }
}

TEST(SunTime, StartAfterTheLastSetHasNone) {
    QKTimeRange backwards = range(23, 0);
    backwards.setEndDtg(backwards.startDtg()->addingSeconds(-day));
    EXPECT_EQ(daylight(backwards), 0.0);
    EXPECT_EQ(daylight(range(22.5, 0.1)), 0.0);
}

TEST(SunTime, CloudTakesItsEighths) {
    const double all = daylight(range(8, 4));
    forEachLine("meteo/cloud_shares.tsv", [&](const DataLine& line) {
        EXPECT_DOUBLE_EQ(MeteoMapping::sunTimeForRange(range(8, 4), line.number(0), berlin()),
                         line.number(1) * all);
    });
}

TEST(SunTime, ASetBeforeTheRiseBelongsToTheRiseOfTheDayBefore) {
    // A place whose clocks show another half of the world: the calendar day begins in full
    // daylight.
    LocationResult honolulu;
    honolulu.setLatitude(Number(21.3));
    honolulu.setLongitude(Number(-157.9));
    honolulu.setTimezone(QStringLiteral("Europe/Berlin"));
    EXPECT_EQ(MeteoMapping::astronomicSuntimeForRange(range(1, 2), honolulu), 2 * hour);
    EXPECT_EQ(MeteoMapping::astronomicSuntimeForRange(range(8, 2), honolulu), 0.0);
}

TEST(SunTime, PolarDayAndUnknownZonesReachTheCaller) {
    LocationResult place = berlin();
    place.setTimezone(QStringLiteral("No/Such"));  // the default zone, Berlin's here
    EXPECT_EQ(MeteoMapping::astronomicSuntimeForRange(range(0, 24), place), daylight(range(0, 24)));
    place.setLatitude(Number(75.0));
    try {
        (void)MeteoMapping::sunTimeForRange(range(0, 24), 0.0, place);
        FAIL();
    } catch (const NamedException& exception) {
        EXPECT_EQ(exception.name(), QStringLiteral("NullPhenomenon"));
        EXPECT_EQ(exception.reason(), QStringLiteral("sun"));
    }
}

}  // namespace
}  // namespace zephyrix
