#include <gtest/gtest.h>

#include "Telling.h"
#include "weather/OpenMeteo.h"

namespace zephyrix {
namespace {

using testing::at;
using testing::daysIn;
using testing::observationIn;
using testing::placeAt;
using testing::with;

const OpenMeteo service;
const Place berlin = placeAt(52.53, 13.38, "Europe/Berlin");
const Instant noon = at("2026-06-01T12:05:00Z");

// 1780315200 is 2026-06-01 12:00 UTC; 1780264800 is 22:00 UTC of the day before, midnight in
// Berlin.
const QByteArray answer = R"({"latitude":52.52,"longitude":13.419998,"generationtime_ms":0.1,
"utc_offset_seconds":7200,"timezone":"Europe/Berlin","timezone_abbreviation":"GMT+2","elevation":38,
"current_units":{"time":"unixtime","interval":"seconds","temperature_2m":"°C",
"relative_humidity_2m":"%","dew_point_2m":"°C","precipitation":"mm","weather_code":"wmo code",
"cloud_cover":"%","pressure_msl":"hPa","wind_speed_10m":"kn","wind_direction_10m":"°",
"wind_gusts_10m":"kn"},
"current":{"time":1780315200,"interval":900,"temperature_2m":14.8,"relative_humidity_2m":84,
"dew_point_2m":12.1,"precipitation":0.40,"weather_code":61,"cloud_cover":75,"pressure_msl":1006.3,
"wind_speed_10m":11.2,"wind_direction_10m":240,"wind_gusts_10m":18.5},
"daily_units":{"time":"unixtime","weather_code":"wmo code","temperature_2m_max":"°C",
"temperature_2m_min":"°C"},
"daily":{"time":[1780264800,1780351200,1780437600],"weather_code":[61,3,0],
"temperature_2m_max":[15.9,18.2,21.0],"temperature_2m_min":[9.4,8.7,null]}})";

TEST(OpenMeteo, IsAskedForWhatThePanelShowsAndNoCloserThanTenMetres) {
    const QString request = service.requestFor(placeAt(-0.00001, 179.123456, "UTC"));
    EXPECT_TRUE(request.startsWith(
        QStringLiteral("v1/forecast?latitude=0.0000&longitude=179.1235&current=temperature_2m,")));
    for (const char* part : {"&wind_speed_unit=kn&", "&timeformat=unixtime&", "&timezone=auto&"})
        EXPECT_TRUE(request.contains(QLatin1String(part))) << part;
}

TEST(OpenMeteo, TellsTheObservation) {
    struct Case {
        const char* why;
        const char* part;
        const char* other;
        const char* told;
    };
    for (const Case& c : {
             // 900 s are 0.25 h; 75 % are 6 eighths; rain below broken clouds with the sun.
             Case{"as it is", "", "",
                  "tt 14.8 td 12.1 dd 240 ff 11.2 ffg 18.5 rrr 0.4 in 0.25 n 6 ww 61 ppp 1006.3 "
                  "symbol 1220100"},
             Case{"a clear sky is no weather", R"("weather_code":61,"cloud_cover":75)",
                  R"("weather_code":0,"cloud_cover":4)",
                  "tt 14.8 td 12.1 dd 240 ff 11.2 ffg 18.5 rrr 0.4 in 0.25 n 0 ww 2 ppp 1006.3 "
                  "symbol 1000000"},
             Case{"the code tells the sky when the cover is missing",
                  R"("weather_code":61,"cloud_cover":75)", R"("weather_code":2)",
                  "tt 14.8 td 12.1 dd 240 ff 11.2 ffg 18.5 rrr 0.4 in 0.25 n 4 ww 2 ppp 1006.3 "
                  "symbol 1200000"},
             Case{"night: 22:00 UTC, and the moon", R"("time":1780315200)", R"("time":1780264800)",
                  "tt 14.8 td 12.1 dd 240 ff 11.2 ffg 18.5 rrr 0.4 in 0.25 n 6 ww 61 ppp 1006.3 "
                  "symbol 2220100"},
             Case{"calm has no direction; north is 360", R"("wind_speed_10m":11.2)",
                  R"("wind_speed_10m":0.3)",
                  "tt 14.8 td 12.1 dd 0 ff 0.3 ffg 18.5 rrr 0.4 in 0.25 n 6 ww 61 ppp 1006.3 "
                  "symbol 1220100"},
             Case{"north", R"("wind_direction_10m":240)", R"("wind_direction_10m":0)",
                  "tt 14.8 td 12.1 dd 360 ff 11.2 ffg 18.5 rrr 0.4 in 0.25 n 6 ww 61 ppp 1006.3 "
                  "symbol 1220100"},
             Case{"gusts and dew point that cannot be", R"("wind_gusts_10m":18.5)",
                  R"("wind_gusts_10m":9.0)",
                  "tt 14.8 td 12.1 dd 240 ff 11.2 ffg 11.2 rrr 0.4 in 0.25 n 6 ww 61 ppp 1006.3 "
                  "symbol 1220100"},
             Case{"another unit than the one asked for", R"("wind_speed_10m":"kn")",
                  R"("wind_speed_10m":"km/h")",
                  "tt 14.8 td 12.1 dd 240 ff - ffg 18.5 rrr 0.4 in 0.25 n 6 ww 61 ppp 1006.3 "
                  "symbol 1220100"},
             Case{"absurd numbers and types", R"(1006.3,
"wind_speed_10m":11.2)",
                  R"(1e300,"wind_speed_10m":"11")",
                  "tt 14.8 td 12.1 dd 240 ff - ffg 18.5 rrr 0.4 in 0.25 n 6 ww 61 ppp - "
                  "symbol 1220100"},
             Case{"rain of no known period is none", R"("interval":900)", R"("interval":0)",
                  "tt 14.8 td 12.1 dd 240 ff 11.2 ffg 18.5 rrr - in - n 6 ww 61 ppp 1006.3 "
                  "symbol 1220100"},
             Case{"neither weather nor clouds", R"("weather_code":61,"cloud_cover":75)",
                  R"("weather_code":1.5,"cloud_cover":101)",
                  "tt 14.8 td 12.1 dd 240 ff 11.2 ffg 18.5 rrr 0.4 in 0.25 n - ww - ppp 1006.3 "
                  "symbol 0"},
             Case{"no temperature", R"("temperature_2m":14.8)", R"("temperature_2m":null)",
                  "it tells no temperature"},
             Case{"yesterday's", R"("time":1780315200)", R"("time":1780220000)",
                  "its weather is of 2026-05-31 09:33:20 +0000"},
             Case{"no time", R"("time":1780315200)", R"("time":"now")", "it has no weather of now"},
             Case{"an error", R"("current":)", R"("currant":)", "it has no weather of now"},
         })
        EXPECT_EQ(observationIn(service, with(answer, c.part, c.other), berlin, noon), c.told)
            << c.why;
}

TEST(OpenMeteo, TellsDaysOfThePlacesOwnCalendar) {
    EXPECT_EQ(daysIn(service, answer, berlin, noon),
              "2026-06-01 220100 15.9 9.4; 2026-06-02 300000 18.2 8.7; 2026-06-03 1000000 21.0 -");
    // Local 00:30 on 2 June: the first day is over.
    EXPECT_EQ(daysIn(service, with(answer, R"("time":1780315200)", R"("time":1780351200)"), berlin,
                     at("2026-06-01T22:30:00Z")),
              "2026-06-02 300000 18.2 8.7; 2026-06-03 1000000 21.0 -");
}

TEST(OpenMeteo, FindsTheDaysOfEveryZone) {
    struct Case {
        const char* why;
        Place place;
        const char* now;
        int offset;
        std::array<const char*, 2> midnights;  // UTC
        const char* told;
    };
    for (const Case& c : {
             Case{"east of the date line, +14",
                  placeAt(1.87, -157.43, "Pacific/Kiritimati"),
                  "2026-06-01T10:30:00Z",
                  50400,
                  {"2026-06-01T10:00:00Z", "2026-06-02T10:00:00Z"},
                  "2026-06-02 1000000 15.0 9.0; 2026-06-03 1000000 16.0 8.0"},
             Case{"west of it, -11",
                  placeAt(-14.28, -170.7, "Pacific/Pago_Pago"),
                  "2026-06-01T10:30:00Z",
                  -39600,
                  {"2026-05-31T11:00:00Z", "2026-06-01T11:00:00Z"},
                  "2026-05-31 1000000 15.0 9.0; 2026-06-01 1000000 16.0 8.0"},
             // The second midnight is of summer time: at the offset of now it is 23 o'clock.
             Case{"the clock goes forward in between",
                  berlin,
                  "2026-03-29T00:30:00Z",
                  3600,
                  {"2026-03-28T23:00:00Z", "2026-03-29T22:00:00Z"},
                  "2026-03-29 1000000 15.0 9.0; 2026-03-30 1000000 16.0 8.0"},
             Case{"and back",
                  berlin,
                  "2026-10-25T00:30:00Z",
                  7200,
                  {"2026-10-24T22:00:00Z", "2026-10-25T23:00:00Z"},
                  "2026-10-25 1000000 15.0 9.0; 2026-10-26 1000000 16.0 8.0"},
             Case{"polar night: no sun on those days",
                  placeAt(69.65, 18.96, "Europe/Oslo"),
                  "2026-12-21T10:30:00Z",
                  3600,
                  {"2026-12-20T23:00:00Z", "2026-12-21T23:00:00Z"},
                  "2026-12-21 2000000 15.0 9.0; 2026-12-22 2000000 16.0 8.0"},
         }) {
        const auto seconds = [](const char* utc) {
            return QByteArray::number(at(utc).secondsSince1970(), 'f', 0);
        };
        const QByteArray sent =
            R"({"utc_offset_seconds":)" + QByteArray::number(c.offset) + R"(,"current":{"time":)" +
            seconds(c.now) + R"(,"temperature_2m":10},"daily":{"time":[)" +
            seconds(c.midnights[0]) + ',' + seconds(c.midnights[1]) +
            R"(],"weather_code":[0,0],"temperature_2m_max":[15,16],"temperature_2m_min":[9,8]}})";
        EXPECT_EQ(daysIn(service, sent, c.place, at(c.now)), c.told) << c.why;
    }
}

TEST(OpenMeteo, BearsDaysThatAreNotWhole) {
    for (const char* broken :
         {R"("time":[1780264800],"weather_code":[])",
          R"("time":[1780264800],"weather_code":{"a":1})",
          R"("time":[1780264800,1780264800,null,"x",1e300],"weather_code":null)"}) {
        const QByteArray sent = R"({"utc_offset_seconds":7200,"current":{"time":1780315200,
            "temperature_2m":10},"daily":{)" +
                                QByteArray(broken) + "}}";
        EXPECT_EQ(daysIn(service, sent, berlin, noon), "2026-06-01 - - -") << broken;
    }
    EXPECT_EQ(service.reasonIn(R"({"error":true,"reason":"Latitude must be in range"})"),
              QStringLiteral("Latitude must be in range"));
    EXPECT_EQ(service.reasonIn("<html>"), QString());
}

}  // namespace
}  // namespace zephyrix
