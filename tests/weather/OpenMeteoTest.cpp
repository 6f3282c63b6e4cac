#include <gtest/gtest.h>

#include "Telling.h"
#include "support/DataLines.h"
#include "weather/OpenMeteo.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

const OpenMeteo service;
const Place berlin = placeAt(52.53, 13.38, "Europe/Berlin");
const Instant noon = at("2026-06-01T12:05:00Z");

// Of 2026-06-01 12:00 UTC; the days begin at 22:00 UTC, midnight in Berlin.
const QByteArray answer = dataFile(QStringLiteral("weather/open_meteo.json"));

TEST(OpenMeteo, IsAskedForWhatThePanelShowsAndNoCloserThanTenMetres) {
    const QString request = service.requestFor(placeAt(-0.00001, 179.123456, "UTC"));
    EXPECT_TRUE(request.startsWith(
        QStringLiteral("v1/forecast?latitude=0.0000&longitude=179.1235&current=temperature_2m,")));
    for (const char* part : {"&wind_speed_unit=kn&", "&timeformat=unixtime&", "&timezone=auto&"})
        EXPECT_TRUE(request.contains(QLatin1String(part))) << part;
}

TEST(OpenMeteo, TellsTheObservation) {
    forEachLine("weather/open_meteo_observations.tsv", [](const DataLine& line) {
        EXPECT_EQ(observationIn(service, with(answer, line.utf8(0), line.utf8(1)), berlin, noon),
                  line[2].toStdString());
    });
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
    const auto seconds = [](const QString& utc) {
        return QByteArray::number(at(utc.toLatin1()).secondsSince1970(), 'f', 0);
    };
    forEachLine("weather/open_meteo_days.tsv", [&](const DataLine& line) {
        const QByteArray sent =
            R"({"utc_offset_seconds":)" + line.utf8(2) + R"(,"current":{"time":)" +
            seconds(line[1]) + R"(,"temperature_2m":10},"daily":{"time":[)" + seconds(line[3]) +
            ',' + seconds(line[4]) +
            R"(],"weather_code":[0,0],"temperature_2m_max":[15,16],"temperature_2m_min":[9,8]}})";
        EXPECT_EQ(daysIn(service, sent, placeIn(line[0]), at(line.utf8(1))), line[5].toStdString());
    });
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
