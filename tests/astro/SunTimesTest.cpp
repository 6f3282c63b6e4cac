#include <algorithm>
#include <array>
#include <cmath>
#include <iostream>
#include <limits>

#include <QHash>
#include <QMap>
#include <gtest/gtest.h>

#include "astro/SunCalculations.h"
#include "foundation/GregorianCalendar.h"
#include "foundation/NamedException.h"
#include "model/LocationResult.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

constexpr double minute = 60.0;
constexpr double hour = 3600.0;
constexpr double day = 86400.0;
constexpr int rise = SunCalculations::rise;
constexpr int set = SunCalculations::set;

Instant at(double seconds) {
    return Instant::fromSecondsSince1970(seconds);
}

QTimeZone zone(const char* name) {
    return timeZoneWithName(QString::fromLatin1(name));
}

struct Place {
    double latitude;
    double longitude;
    QTimeZone zone;

    /// A time of day on a day counted from 2024 January 1.
    [[nodiscard]] Instant on(int dayNumber, int hourOfDay = 12) const {
        return GregorianCalendar(zone).instant(
            {.year = 2024, .month = 1, .day = 1 + dayNumber, .hour = hourOfDay, .minute = 10});
    }
    [[nodiscard]] Instant sun(Instant date, int event) const {
        return SunCalculations().sunTimesforDate(date, longitude, latitude, event, zone);
    }
    [[nodiscard]] bool isDay(Instant date) const {
        return SunCalculations().isDayLightAtDate(date, longitude, latitude, zone);
    }
    /// "times", or the reason why there are none.
    [[nodiscard]] QString season(Instant date) const {
        SunCalculations sun;
        try {
            (void)sun.sunTimesforDate(date, longitude, latitude, rise, zone);
        } catch (const NamedException& exception) {
            EXPECT_EQ(exception.name(), QStringLiteral("NullPhenomenon"));
            EXPECT_EQ(exception.reason(), sun.nullPhenomenon());
            EXPECT_TRUE(exception.userInfo().isEmpty());
            return exception.reason();
        }
        EXPECT_TRUE(sun.nullPhenomenon().isEmpty());
        return QStringLiteral("times");
    }
};

const Place berlin{52.53, 13.38, zone("Europe/Berlin")};
const Place sydney{-33.87, 151.21, zone("Australia/Sydney")};
const Place lordHowe{-31.55, 159.08, zone("Australia/Lord_Howe")};

Place placeOf(const QStringList& row) {
    return {row[1].toDouble(), row[2].toDouble(), timeZoneWithName(row[3])};
}

Instant noonOf(const Place& place, const QString& date) {
    const QDate parsed = QDate::fromString(date, Qt::ISODate);
    return GregorianCalendar(place.zone)
        .instant({.year = parsed.year(), .month = parsed.month(), .day = parsed.day(), .hour = 12});
}

/// Seconds by which the event misses the almanac's; 0 when both say for the same reason that there
/// is none.
double errorAgainst(const Place& place, const QString& date, int event, int twilight,
                    const QString& expected) {
    SunCalculations sun;
    try {
        const Instant found = sun.sunTimesforDate(noonOf(place, date), place.longitude,
                                                  place.latitude, event, twilight, place.zone);
        return std::abs(found.secondsSince1970() - expected.toDouble());
    } catch (const NamedException& exception) {
        return exception.reason() == expected ? 0.0 : std::numeric_limits<double>::infinity();
    }
}

TEST(SunTimes, AgreeWithAnAlmanac) {
    const QHash<QString, int> twilights{
        {QStringLiteral("official"), SunCalculations::officialHorizon},
        {QStringLiteral("civil"), SunCalculations::civilTwilight},
        {QStringLiteral("nautical"), SunCalculations::nauticalTwilight},
        {QStringLiteral("astronomical"), SunCalculations::astronomicalTwilight}};
    QMap<QString, double> worst;
    for (const QStringList& row : dataLines(QStringLiteral("astro/sun-times.tsv"))) {
        for (const int event : {rise, set}) {
            const QString& expected = row[event == rise ? 6 : 7];
            if (expected == QLatin1String("-"))  // none on this day of the zone's calendar
                continue;
            const double error =
                errorAgainst(placeOf(row), row[4], event, twilights.value(row[5]), expected);
            const bool isTwilight = row[5] != QLatin1String("official");
            // Towards the polar circles the sun grazes the depths of the twilights.
            const bool isGrazing = isTwilight && std::abs(row[1].toDouble()) > 54.0;
            const double limit = isGrazing ? 8.0 : 1.5;
            EXPECT_LT(error, limit * minute) << row.join(QLatin1Char(' ')).toStdString();
            const QString what = row[0] + (isTwilight ? QStringLiteral(", twilights") : QString());
            worst[what] = std::max(worst.value(what), error);
        }
    }
    EXPECT_EQ(worst.size(), 36);  // 18 places
    for (auto place = worst.cbegin(); place != worst.cend(); ++place)
        std::cout << place.key().toStdString() << ": worst error " << place.value() / minute
                  << " minutes\n";
}

TEST(SunTimes, PolarSeasonsChangeWhenTheyShould) {
    const auto rows = dataLines(QStringLiteral("astro/polar-seasons.tsv"));
    int worst = 0;
    for (int i = 0; i < rows.size(); ++i) {
        const Place place = placeOf(rows[i]);
        const bool isLast = i + 1 == rows.size() || rows[i + 1][0] != rows[i][0];
        const QDate first = QDate::fromString(rows[i][4], Qt::ISODate);
        const QDate end =
            isLast ? QDate(2025, 1, 1) : QDate::fromString(rows[i + 1][4], Qt::ISODate);
        for (QDate date = first; date < end; date = date.addDays(1)) {
            if (place.season(noonOf(place, date.toString(Qt::ISODate))) == rows[i][5])
                continue;
            const auto off = static_cast<int>(std::min(first.daysTo(date) + 1, date.daysTo(end)));
            worst = std::max(worst, off);
            EXPECT_LE(off, 2) << rows[i][0].toStdString() << ' '
                              << date.toString(Qt::ISODate).toStdString();
        }
    }
    std::cout << "worst error of a season's change: " << worst << " days\n";
}

TEST(SunTimes, PolesAreMovedALittleAway) {
    for (const double beyond : {0.0, 0.001, 1e6}) {
        for (const double longitude : {-180.0, 0.0, 77.0}) {
            const Place north{90.0 + beyond, longitude, QTimeZone::utc()};
            const Place south{-90.0 - beyond, longitude, QTimeZone::utc()};
            EXPECT_EQ(north.season(north.on(170)), QStringLiteral("sun"));
            EXPECT_EQ(south.season(south.on(170)), QStringLiteral("nosun"));
            EXPECT_EQ(north.season(north.on(355)), QStringLiteral("nosun"));
            EXPECT_EQ(south.season(south.on(355)), QStringLiteral("sun"));
            // A tenth of a degree from the pole the sun still rises on one day of the year.
            int days = 0;
            for (int number = 0; number < 366; ++number)
                days += north.season(north.on(number)) == QLatin1String("times") ? 1 : 0;
            EXPECT_TRUE(days >= 1 && days <= 4) << days;
        }
    }
}

// The offset at the asked moment may not be that at the event.
TEST(SunTimes, DoNotDependOnTheTimeOfDayThatIsAsked) {
    for (const Place& place : {berlin, sydney, lordHowe}) {
        for (int number = 0; number < 366; ++number) {
            for (const int event : {rise, set}) {
                const Instant atNoon = place.sun(place.on(number), event);
                const Instant early = place.sun(place.on(number, 0), event);
                const Instant late = place.sun(place.on(number, 23), event);
                EXPECT_LE(std::abs(early.secondsSince(atNoon)), minute) << number;
                EXPECT_LE(std::abs(late.secondsSince(atNoon)), minute) << number;
            }
        }
    }
}

TEST(SunTimes, UnknownCodesAreTheSetAndTheOfficialHorizon) {
    SunCalculations sun;
    const Instant date = berlin.on(100);
    const auto time = [&](int event, int twilight) {
        return sun.sunTimesforDate(date, 13.38, 52.53, event, twilight, berlin.zone);
    };
    for (const int twilight : {-1, 1, 5})
        EXPECT_EQ(time(rise, twilight), time(rise, SunCalculations::officialHorizon));
    for (const int event : {-1, 2})
        EXPECT_EQ(time(event, 0), time(set, 0));
    EXPECT_LT(time(rise, SunCalculations::astronomicalTwilight), time(rise, 4));
}

TEST(SunTimes, ShortFormsUseTheDefaultZoneOrThePlace) {
    SunCalculations sun;
    const Instant date = berlin.on(100);
    const Instant expected = berlin.sun(date, set);
    EXPECT_EQ(sun.sunTimesforDate(date, 13.38, 52.53, set), expected);
    EXPECT_EQ(sun.sunTimesforDate(date, 13.38, 52.53, set, QTimeZone()), expected);
    EXPECT_EQ(
        sun.sunTimesforDate(date, 13.38, 52.53, set, SunCalculations::civilTwilight),
        sun.sunTimesforDate(date, 13.38, 52.53, set, SunCalculations::civilTwilight, berlin.zone));
    LocationResult place;
    place.setLatitude(Number(52.53));
    place.setLongitude(Number(13.38));
    place.setTimezone(QStringLiteral("No/Such"));
    EXPECT_EQ(sun.sunTimesforDate(date, place, set), expected);
    EXPECT_EQ(sun.isDayLightAtDate(date, 13.38, 52.53), berlin.isDay(date));
    EXPECT_NE(sun.sunTimesforDate(date, LocationResult(), set), expected);
}

TEST(SunTimes, MeaninglessValuesGiveNoNumberAndNoCrash) {
    SunCalculations sun;
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double odd : {std::nan(""), infinity, -infinity})
        EXPECT_TRUE(std::isnan(
            sun.sunTimesforDate(berlin.on(1), odd, 52.5, rise, berlin.zone).secondsSince1970()));
    EXPECT_TRUE(std::isnan(sun.sunTimesforDate(berlin.on(1), 13.0, std::nan(""), rise, berlin.zone)
                               .secondsSince1970()));
    const Instant date = berlin.on(1);
    EXPECT_LE(std::abs(sun.sunTimesforDate(date, 1e300, 0.0, rise).secondsSince(date)), 2 * day);
    for (const double odd : {std::nan(""), infinity, 1e20, -1e20})
        (void)sun.sunTimesforDate(at(odd), 13.0, 0.0, rise);
}

TEST(DayLight, ExcludesTheMomentsOfRiseAndSet) {
    const Instant date = berlin.on(100);
    const Instant sunrise = berlin.sun(date, rise);
    const Instant sunset = berlin.sun(date, set);
    EXPECT_FALSE(berlin.isDay(sunrise));
    EXPECT_TRUE(berlin.isDay(sunrise.addingSeconds(0.5)));
    EXPECT_TRUE(berlin.isDay(sunset.addingSeconds(-0.5)));
    EXPECT_FALSE(berlin.isDay(sunset));
}

// In a foreign zone the day of the calendar cuts the daylight in two, and sets come before rises.
TEST(DayLight, DoesNotDependOnTheZone) {
    const std::array zones{zone("Europe/Berlin"), zone("Pacific/Honolulu"), zone("Asia/Kathmandu"),
                           zone("Pacific/Kiritimati"), QTimeZone::utc()};
    for (const Place& place : {berlin, sydney}) {
        for (int hours = 0; hours < 366 * 24; hours += 5) {
            const Instant date = place.on(0).addingSeconds(hours * hour);
            const double toRise = std::abs(place.sun(date, rise).secondsSince(date));
            const double toSet = std::abs(place.sun(date, set).secondsSince(date));
            if (std::min(toRise, toSet) < 10 * minute)
                continue;
            for (const QTimeZone& other : zones) {
                const Place elsewhere{place.latitude, place.longitude, other};
                EXPECT_EQ(elsewhere.isDay(date), place.isDay(date))
                    << date.description().toStdString() << ' ' << other.id().constData();
            }
        }
    }
}

TEST(DayLight, PassesPolarDayAndNightOn) {
    const Place tromso{69.65, 18.96, zone("Europe/Oslo")};
    EXPECT_THROW((void)tromso.isDay(tromso.on(172)), NamedException);
}

}  // namespace
}  // namespace zephyrix
