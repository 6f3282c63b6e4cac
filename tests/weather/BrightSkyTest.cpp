#include <gtest/gtest.h>

#include "Telling.h"
#include "weather/BrightSky.h"

namespace zephyrix {
namespace {

using testing::at;
using testing::observationIn;
using testing::placeAt;
using testing::with;

const BrightSky service;
const Place berlin = placeAt(52.53, 13.38, "Europe/Berlin");

const QByteArray answer = R"({"weather":{"source_id":303711,"timestamp":"2026-06-01T14:00:00+02:00",
"cloud_cover":88,"condition":"rain","dew_point":12.1,"precipitation_10":0.2,"precipitation_30":0.5,
"precipitation_60":1.4,"pressure_msl":1006.3,"relative_humidity":84,"visibility":9000,
"wind_direction_10":240,"wind_direction_30":250,"wind_direction_60":260,"wind_speed_10":18.52,
"wind_speed_30":20.0,"wind_speed_60":22.0,"wind_gust_direction_10":240,"wind_gust_speed_10":30.0,
"wind_gust_speed_30":33.0,"wind_gust_speed_60":37.04,"sunshine_30":0,"temperature":14.8,
"fallback_source_ids":{},"icon":"rain"},"sources":[
{"id":12,"distance":90000.0,"station_name":"far"},
{"id":303711,"dwd_station_id":"00433","observation_type":"synop","lat":52.47,"lon":13.4,
"height":48.0,"station_name":"Berlin-Tempelhof","wmo_station_id":"10384","distance":7200.0}]})";

TEST(BrightSky, TellsWhatTheStationMeasured) {
    struct Case {
        const char* why;
        const char* part;
        const char* other;
        const char* told;
    };
    for (const Case& c : {
             // 18.52 km/h are 10 kn, 37.04 km/h are 20 kn; 88 % are 7.04 eighths.
             Case{"as it is", "", "",
                  "tt 14.8 td 12.1 dd 240 ff 10.0 ffg 20.0 rrr 1.4 in 1.00 n 7 ww 61 ppp 1006.3 "
                  "symbol 220100"},
             Case{"half an hour's rain, 6 mm in an hour",
                  R"("precipitation_30":0.5,
"precipitation_60":1.4)",
                  R"("precipitation_30":3.0,"precipitation_60":null)",
                  "tt 14.8 td 12.1 dd 240 ff 10.0 ffg 20.0 rrr 3.0 in 0.50 n 7 ww 63 ppp 1006.3 "
                  "symbol 520200"},
             Case{"no ten minutes' wind", R"("wind_speed_10":18.52,
"wind_speed_30":20.0)",
                  R"("wind_speed_30":55.56)",
                  "tt 14.8 td 12.1 dd 240 ff 30.0 ffg 30.0 rrr 1.4 in 1.00 n 7 ww 61 ppp 1006.3 "
                  "symbol 220100"},
             Case{"dry", R"("cloud_cover":88,"condition":"rain")",
                  R"("cloud_cover":30,"condition":"dry")",
                  "tt 14.8 td 12.1 dd 240 ff 10.0 ffg 20.0 rrr 1.4 in 1.00 n 2 ww 2 ppp 1006.3 "
                  "symbol 1100000"},
             Case{"a condition that it does not know", R"("condition":"rain")",
                  R"("condition":null)",
                  "tt 14.8 td 12.1 dd 240 ff 10.0 ffg 20.0 rrr 1.4 in 1.00 n 7 ww - ppp 1006.3 "
                  "symbol 1300000"},
             Case{"a station far away", R"("distance":7200.0)", R"("distance":25001)",
                  "its station is not near"},
             Case{"a station of nobody knows where", R"("id":303711)", R"("id":"303711")",
                  "its station is not near"},
             Case{"91 minutes old", "T14:00:00+02:00", "T12:34:00+02:00",
                  "its observation is of 2026-06-01 10:34:00 +0000"},
             Case{"nor which", R"("source_id":303711,)", "", "its station is not near"},
             Case{"nothing observed", R"("weather")", R"("whether")", "its station is not near"},
         })
        EXPECT_EQ(observationIn(service, with(answer, c.part, c.other), berlin,
                                at("2026-06-01T12:05:00Z")),
                  c.told)
            << c.why;
}

TEST(BrightSky, IsNotAskedBeyondItsStations) {
    EXPECT_TRUE(service.covers(berlin));
    EXPECT_FALSE(service.covers(placeAt(59.91, 10.75, "Europe/Oslo")));
    EXPECT_FALSE(service.covers(placeAt(52.53, -13.38, "UTC")));
}

}  // namespace
}  // namespace zephyrix
