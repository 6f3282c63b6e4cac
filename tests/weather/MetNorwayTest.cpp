#include <gtest/gtest.h>

#include "Telling.h"
#include "weather/MetNorway.h"
#include "weather/MetSymbolCode.h"

namespace zephyrix {
namespace {

using testing::at;
using testing::daysIn;
using testing::observationIn;
using testing::placeAt;
using testing::with;

const MetNorway service;
const Place oslo = placeAt(59.91, 10.75, "Europe/Oslo");

QByteArray seriesOf(const QByteArray& steps) {
    return R"({"type":"Feature","geometry":{"type":"Point","coordinates":[10.75,59.91,5]},
        "properties":{"meta":{"updated_at":"2026-06-01T11:30:00Z","units":{
        "air_pressure_at_sea_level":"hPa","air_temperature":"celsius","air_temperature_max":"celsius",
        "air_temperature_min":"celsius","cloud_area_fraction":"%","dew_point_temperature":"celsius",
        "precipitation_amount":"mm","wind_from_direction":"degrees","wind_speed":"m/s",
        "wind_speed_of_gust":"m/s"}},"timeseries":[)" +
           steps + "]}}";
}

const QByteArray noonStep = R"({"time":"2026-06-01T12:00:00Z","data":{"instant":{"details":{
    "air_pressure_at_sea_level":1006.3,"air_temperature":14.8,"cloud_area_fraction":62.5,
    "dew_point_temperature":12.1,"wind_from_direction":240.4,"wind_speed":5.0,
    "wind_speed_of_gust":10.3}},"next_1_hours":{"summary":{"symbol_code":"rainshowers_day"},
    "details":{"precipitation_amount":0.7}},"next_6_hours":{"summary":{"symbol_code":"rain"},
    "details":{"precipitation_amount":4.0,"air_temperature_max":17.5,"air_temperature_min":11.0}}}})";

/// A step with what a far forecast has: "HOURS" is 1 or 6.
QByteArray step(const QString& time, double temperature, const char* hours, const char* symbol,
                double amount) {
    return QStringLiteral(R"({"time":"%1","data":{"instant":{"details":{"air_temperature":%2}},
        "next_%3_hours":{"summary":{"symbol_code":"%4"},"details":{"precipitation_amount":%5}}}})")
        .arg(time)
        .arg(temperature)
        .arg(QLatin1String(hours), QLatin1String(symbol))
        .arg(amount)
        .toUtf8();
}

TEST(MetNorway, IsAskedWithFourDecimals) {
    Place place = placeAt(59.913868, 10.752245, "Europe/Oslo");
    EXPECT_EQ(service.requestFor(place),
              QStringLiteral("weatherapi/locationforecast/2.0/complete?lat=59.9139&lon=10.7522"));
    place.elevation = Metres(12.6);
    EXPECT_TRUE(service.requestFor(place).endsWith(QStringLiteral("&altitude=13")));
}

TEST(MetNorway, TellsTheStepThatHoldsNow) {
    const QByteArray later = with(with(noonStep, "T12:00", "T13:00"), "14.8", "15.5");
    const QByteArray series = seriesOf(noonStep + ',' + later);
    // 5 m/s are 9.72 kn, 10.3 m/s are 20.02 kn; 62.5 % are 5 eighths; the rain is of the next hour.
    const std::string atNoon =
        "tt 14.8 td 12.1 dd 240 ff 9.7 ffg 20.0 rrr 0.7 next 1.00 n 5 ww 81 ppp 1006.3 "
        "symbol 1521200";
    struct Case {
        const char* why;
        QByteArray answer;
        const char* now;
        std::string told;
    };
    const std::string atOne =
        QByteArray::fromStdString(atNoon).replace("14.8", "15.5").toStdString();
    for (const Case& c : {
             Case{"just begun", series, "2026-06-01T12:00:00Z", atNoon},
             Case{"not yet over", series, "2026-06-01T12:59:59Z", atNoon},
             Case{"the next", series, "2026-06-01T13:00:00Z", atOne},
             Case{"a clock that is slow", series, "2026-06-01T11:50:00Z", atNoon},
             Case{"out of order, and twice", seriesOf(later + ',' + noonStep + ',' + noonStep),
                  "2026-06-01T12:30:00Z", atNoon},
             Case{"held over, but too long", series, "2026-06-01T19:00:01Z",
                  "it has no weather of now"},
             Case{"six hours only, night",
                  seriesOf(step(QStringLiteral("2026-06-01T00:00:00Z"), 3, "6", "fair_night", 0)),
                  "2026-06-01T00:10:00Z",
                  "tt 3.0 td - dd - ff - ffg - rrr 0.0 next 6.00 n 2 ww 2 ppp - symbol 2100000"},
             Case{"a symbol from tomorrow's manual",
                  seriesOf(step(QStringLiteral("2026-06-01T12:00:00Z"), 3, "1", "frogs", 0)),
                  "2026-06-01T12:10:00Z",
                  "tt 3.0 td - dd - ff - ffg - rrr 0.0 next 1.00 n - ww - ppp - symbol 0"},
             Case{"speeds in another unit",
                  with(series, R"("wind_speed":"m/s")", R"("wind_speed":"km/h")"),
                  "2026-06-01T12:10:00Z",
                  QByteArray::fromStdString(atNoon).replace("ff 9.7", "ff -").toStdString()},
             Case{"no steps", seriesOf(""), "2026-06-01T12:00:00Z", "it has no time steps"},
             Case{"steps without a time", seriesOf(R"({"data":{}},7,null,[])"),
                  "2026-06-01T12:00:00Z", "it has no time steps"},
         })
        EXPECT_EQ(observationIn(service, c.answer, oslo, at(c.now)), c.told) << c.why;
    // What it reads changes with the hour, without a new answer.
    EXPECT_EQ(service.read(series, oslo, at("2026-06-01T12:10:00Z")).validUntil,
              at("2026-06-01T13:00:00Z"));
}

TEST(MetNorway, GathersStepsIntoThePlacesOwnDays) {
    // Every hour of two days, then every six: the temperature is the hour of the series.
    const auto series = [](const char* begin) {
        QByteArrayList steps;
        for (int hour = 0; hour < 54; hour += hour < 48 ? 1 : 6) {
            const QString time =
                at(begin).addingSeconds(3600.0 * hour).toDateTime().toString(Qt::ISODate);
            steps << step(time, hour, hour < 48 ? "1" : "6", hour == 30 ? "heavyrain" : "fair_day",
                          hour == 30 ? 6.0 : 0.0);
        }
        return seriesOf(steps.join(','));
    };
    struct Case {
        const char* why;
        Place place;
        const char* begin;
        const char* now;
        const char* told;
    };
    for (const Case& c : {
             // Local days are hours 0 to 21, 22 to 45; of the third the series has no afternoon.
             Case{"+2: the day ends at 22 UTC", oslo, "2026-06-01T00:00:00Z",
                  "2026-06-01T00:10:00Z",
                  "2026-06-01 1100000 21.0 0.0; 2026-06-02 620300 45.0 22.0"},
             Case{"later the same day only its rest counts", oslo, "2026-06-01T00:00:00Z",
                  "2026-06-01T20:10:00Z",
                  "2026-06-01 1100000 21.0 20.0; 2026-06-02 620300 45.0 22.0"},
             Case{"23 hours: the clock goes forward", oslo, "2026-03-28T23:00:00Z",
                  "2026-03-28T23:10:00Z",
                  "2026-03-29 1100000 22.0 0.0; 2026-03-30 620300 46.0 23.0"},
             Case{"25 hours: and back", oslo, "2026-10-24T22:00:00Z", "2026-10-24T22:10:00Z",
                  "2026-10-25 1100000 24.0 0.0; 2026-10-26 620300 48.0 25.0"},
             Case{"at the date line, +14", placeAt(1.87, -157.43, "Pacific/Kiritimati"),
                  "2026-06-01T10:00:00Z", "2026-06-01T10:10:00Z",
                  "2026-06-02 1100000 23.0 0.0; 2026-06-03 620300 47.0 24.0"},
             Case{"and beyond, -11", placeAt(-14.28, -170.7, "Pacific/Pago_Pago"),
                  "2026-06-01T10:00:00Z", "2026-06-01T10:10:00Z",
                  "2026-05-31 1100000 0.0 0.0; 2026-06-01 1100000 24.0 1.0; "
                  "2026-06-02 620300 48.0 25.0"},
             Case{"polar night", placeAt(78.2, 15.6, "Arctic/Longyearbyen"), "2026-12-20T23:00:00Z",
                  "2026-12-20T23:10:00Z",
                  "2026-12-21 2100000 23.0 0.0; 2026-12-22 620300 47.0 24.0"},
         })
        EXPECT_EQ(daysIn(service, series(c.begin), c.place, at(c.now)), c.told) << c.why;
    // What the six hours say about the extremes counts too.
    const QByteArray far = with(noonStep, "next_1_hours", "next_12_hours");
    EXPECT_EQ(daysIn(service, seriesOf(far), oslo, at("2026-06-01T12:10:00Z")),
              "2026-06-01 520200 17.5 11.0");
}

TEST(MetSymbol, KnowsWeatherByDayAndNight) {
    struct Case {
        const char* code;
        int ww;
        double eighths;
    };
    for (const Case& c :
         {Case{"clearsky_polartwilight", 2, 0}, Case{"cloudy", 2, 8}, Case{"fog", 45, 8},
          Case{"lightssnowshowersandthunder_day", 95, 5}, Case{"heavysleet", 69, 8}}) {
        const auto symbol = metSymbol(c.code);
        ASSERT_TRUE(symbol) << c.code;
        EXPECT_EQ(symbol->presentWeather, c.ww) << c.code;
        EXPECT_EQ(symbol->cloudCover, Eighths(c.eighths)) << c.code;
    }
    for (const char* code : {"", "_day", "rainy", "Rain"})
        EXPECT_FALSE(metSymbol(code)) << code;
}

}  // namespace
}  // namespace zephyrix
