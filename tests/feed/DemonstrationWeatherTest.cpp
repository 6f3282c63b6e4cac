#include <initializer_list>

#include <gtest/gtest.h>

#include "feed/DemonstrationAtmosphere.h"
#include "feed/DemonstrationWeather.h"
#include "foundation/TimeZone.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

using State = DemonstrationAtmosphere::State;

Place placeAt(double latitude, double longitude, const char* zone) {
    return {1, latitude, longitude, timeZoneWithName(QString::fromLatin1(zone))};
}

const Place berlin = placeAt(52.53, 13.38, "Europe/Berlin");

Instant at(const QString& utc) {
    return Instant::fromDateTime(QDateTime::fromString(utc, Qt::ISODate));
}

Weather weatherAt(const Place& place, Instant now, const char* scenario = "changing") {
    return *DemonstrationWeather(*scenarioNamed(scenario)).weatherAt(place, now);
}

bool isWet(const State& state) {
    return state.precipitation > Millimetres(0.0);
}

constexpr auto latitudes = {-90.0, -54.8, -33.9, 0.0, 21.3, 52.53, 69.65, 90.0};

TEST(DemonstrationAtmosphere, EveryHourOfAYearIsPossible) {
    for (const double latitude : latitudes) {
        const DemonstrationAtmosphere atmosphere(placeAt(latitude, 0.0, "UTC"),
                                                 scenarios().front());
        for (int hour = 0; hour < 365 * 24; ++hour) {
            const State state = atmosphere.at(
                at(QStringLiteral("2026-01-01T00:00:00Z")).addingSeconds(3600.0 * hour));
            ASSERT_LE(state.dewPoint, state.temperature) << latitude;
            ASSERT_GE(state.gusts, state.windSpeed) << latitude;
            ASSERT_EQ(state.windSpeed == Knots(0), state.windDirection == Degrees(0)) << latitude;
            ASSERT_TRUE(state.windDirection >= Degrees(0) && state.windDirection <= Degrees(360));
            ASSERT_TRUE(state.temperature > Celsius(-60) && state.temperature < Celsius(48));
            ASSERT_TRUE(state.pressure > Hectopascals(950) && state.pressure < Hectopascals(1065));
            ASSERT_TRUE(state.cloudCover >= Eighths(0) && state.cloudCover <= Eighths(8));
            ASSERT_TRUE(state.precipitation >= Millimetres(0) &&
                        state.precipitation < Millimetres(40));
            // What falls has a code of its own, and clouds to fall from; frost lets no rain fall.
            ASSERT_EQ(isWet(state), state.presentWeather > 50) << state.presentWeather;
            ASSERT_TRUE(!isWet(state) || state.cloudCover >= Eighths(5));
            const bool snows = state.presentWeather >= 70 && state.presentWeather <= 75;
            ASSERT_FALSE(snows && state.temperature > Celsius(2)) << state.temperature.value();
            const bool rains = state.presentWeather >= 51 && state.presentWeather <= 65;
            ASSERT_FALSE(rains && state.temperature < Celsius(0)) << state.temperature.value();
        }
    }
}

TEST(DemonstrationAtmosphere, SummerIsInJulyInTheNorthAndInJanuaryInTheSouth) {
    for (const double latitude : {-54.8, -33.9, 52.53, 69.65}) {
        const DemonstrationAtmosphere atmosphere(placeAt(latitude, 0.0, "UTC"),
                                                 scenarios().front());
        double warmer = 0.0;  // the mean of 30 noons in July against those in January
        for (int day = 0; day < 30; ++day) {
            const Instant winter =
                at(QStringLiteral("2026-01-06T12:00:00Z")).addingSeconds(86400.0 * day);
            warmer += (atmosphere.at(winter.addingSeconds(180 * 86400.0)).temperature.value() -
                       atmosphere.at(winter).temperature.value()) /
                      30.0;
        }
        EXPECT_GT(latitude > 0.0 ? warmer : -warmer, 8.0) << latitude;
    }
}

TEST(DemonstrationWeather, IsTheSameForAPlaceDuringAnHour) {
    const Weather first = weatherAt(berlin, at(QStringLiteral("2026-06-01T12:00:00Z")));
    const Weather last = weatherAt(berlin, at(QStringLiteral("2026-06-01T12:59:59.999Z")));
    EXPECT_EQ(first.observation->time, last.observation->time);
    EXPECT_EQ(first.observation->temperature, last.observation->temperature);
    EXPECT_EQ(first.days->back().highest, last.days->back().highest);
    EXPECT_EQ(weatherAt(berlin, at(QStringLiteral("2026-06-01T13:00:00Z"))).observation->time,
              at(QStringLiteral("2026-06-01T13:00:00Z")));
    // The default place has its coordinates in single precision; its weather is the same.
    const Place single{1, 52.529998779296875, 13.380000114440918, berlin.zone};
    EXPECT_EQ(
        weatherAt(single, at(QStringLiteral("2026-06-01T12:00:00Z"))).observation->temperature,
        first.observation->temperature);
    // Pinned: another machine, compiler or year must not change it unnoticed.
    EXPECT_DOUBLE_EQ(first.observation->temperature->value(), 16.4);
    EXPECT_DOUBLE_EQ(first.observation->pressure->value(), 1037.8);
}

TEST(DemonstrationWeather, SixDaysBeginTodayOnThePlacesOwnCalendar) {
    forEachLine("feed/todays.tsv", [](const DataLine& line) {
        const QByteArray zone = line.utf8(0);
        const Weather weather = weatherAt(placeAt(10.0, 20.0, zone.constData()), at(line[1]));
        ASSERT_EQ(weather.days->size(), 6U);
        QDate expected = QDate::fromString(line[2], Qt::ISODate);
        for (const ForecastDay& day : *weather.days) {
            EXPECT_EQ(day.date, expected);
            expected = expected.addDays(1);
        }
    });
}

TEST(DemonstrationWeather, ForecastAndObservationsAgree) {
    for (const double latitude : latitudes)
        for (const char* zone : {"Europe/Berlin", "Australia/Lord_Howe", "Asia/Kathmandu"}) {
            const Place place = placeAt(latitude, 160.0, zone);
            for (int day = 0; day < 365; day += 13) {
                const Instant now =
                    at(QStringLiteral("2026-01-01T05:20:00Z")).addingSeconds(86400.0 * day);
                const Weather weather = weatherAt(place, now);
                for (const ForecastDay& forecast : *weather.days)
                    ASSERT_LT(forecast.lowest, forecast.highest) << latitude;
                const ForecastDay& today = weather.days->front();
                for (int hour = 0; hour < 8; ++hour) {
                    const Instant later = now.addingSeconds(3600.0 * hour);
                    const Weather then = weatherAt(place, later);
                    if (then.days->front().date != today.date)
                        break;
                    EXPECT_EQ(then.days->front().highest, today.highest) << latitude << zone;
                    EXPECT_GE(then.observation->temperature, today.lowest) << latitude << zone;
                    EXPECT_LE(then.observation->temperature, today.highest) << latitude << zone;
                }
            }
        }
}

TEST(DemonstrationWeather, SunAndMoonFollowTheSkyOfThePlace) {
    forEachLine("feed/bodies.tsv", [](const DataLine& line) {
        const Place place = placeAt(line.number(0), 13.0, "Europe/Berlin");
        const Weather weather = weatherAt(place, at(line[1]), "fair");
        EXPECT_EQ(*weather.observation->symbol / 1000000, line.integer(2));
    });
    const Place svalbard = placeAt(78.2, 15.6, "Arctic/Longyearbyen");
    const Weather polarNight =
        weatherAt(svalbard, at(QStringLiteral("2026-12-21T12:00:00Z")), "fair");
    for (const ForecastDay& day : *polarNight.days)
        EXPECT_EQ(*day.symbol / 1000000, 2);
}

}  // namespace
}  // namespace zephyrix
