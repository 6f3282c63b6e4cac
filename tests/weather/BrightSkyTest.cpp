#include <gtest/gtest.h>

#include "Telling.h"
#include "support/DataLines.h"
#include "weather/BrightSky.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

const BrightSky service;
const Place berlin = placeAt(52.53, 13.38, "Europe/Berlin");

const QByteArray answer = dataFile(QStringLiteral("weather/bright_sky.json"));

TEST(BrightSky, TellsWhatTheStationMeasured) {
    forEachLine("weather/bright_sky_observations.tsv", [](const DataLine& line) {
        EXPECT_EQ(observationIn(service, with(answer, line.utf8(0), line.utf8(1)), berlin,
                                at("2026-06-01T12:05:00Z")),
                  line[2].toStdString());
    });
}

TEST(BrightSky, IsNotAskedBeyondItsStations) {
    EXPECT_TRUE(service.covers(berlin));
    EXPECT_FALSE(service.covers(placeAt(59.91, 10.75, "Europe/Oslo")));
    EXPECT_FALSE(service.covers(placeAt(52.53, -13.38, "UTC")));
}

}  // namespace
}  // namespace zephyrix
