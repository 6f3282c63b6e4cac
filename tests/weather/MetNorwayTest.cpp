#include <QHash>
#include <gtest/gtest.h>

#include "Telling.h"
#include "support/DataLines.h"
#include "weather/MetNorway.h"
#include "weather/MetSymbolCode.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

const MetNorway service;
const Place oslo = placeAt(59.91, 10.75, "Europe/Oslo");

// Both by hand, in the form that the service documents.
const QByteArray series = dataFile(QStringLiteral("weather/met_norway_series.json"));
const QByteArray noonStep = dataFile(QStringLiteral("weather/met_norway_noon.json"));

QByteArray seriesOf(const QByteArray& steps) {
    return with(series, "STEPS", steps);
}

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
    const auto farStep = [](const char* time, const char* hours, const char* symbol) {
        return seriesOf(step(QLatin1String(time), 3, hours, symbol, 0));
    };
    const QByteArray both = seriesOf(noonStep + ',' + later);
    const QHash<QString, QByteArray> answers{
        {QStringLiteral("noon and one"), both},
        {QStringLiteral("one, noon and noon"), seriesOf(later + ',' + noonStep + ',' + noonStep)},
        {QStringLiteral("six hours of midnight"),
         farStep("2026-06-01T00:00:00Z", "6", "fair_night")},
        {QStringLiteral("frogs at noon"), farStep("2026-06-01T12:00:00Z", "1", "frogs")},
        {QStringLiteral("km/h"), with(both, R"("wind_speed":"m/s")", R"("wind_speed":"km/h")")},
        {QStringLiteral("none"), seriesOf("")},
        {QStringLiteral("nonsense"), seriesOf(R"({"data":{}},7,null,[])")}};
    forEachLine("weather/met_norway_steps.tsv", [&](const DataLine& line) {
        ASSERT_TRUE(answers.contains(line[0]));
        EXPECT_EQ(observationIn(service, answers[line[0]], oslo, at(line.utf8(1))),
                  line[2].toStdString());
    });
    // What it reads changes with the hour, without a new answer.
    EXPECT_EQ(service.read(both, oslo, at("2026-06-01T12:10:00Z")).validUntil,
              at("2026-06-01T13:00:00Z"));
}

TEST(MetNorway, GathersStepsIntoThePlacesOwnDays) {
    // Every hour of two days, then every six: the temperature is the hour of the series.
    const auto hourly = [](const char* begin) {
        QByteArrayList steps;
        for (int hour = 0; hour < 54; hour += hour < 48 ? 1 : 6) {
            const QString time =
                at(begin).addingSeconds(3600.0 * hour).toDateTime().toString(Qt::ISODate);
            steps << step(time, hour, hour < 48 ? "1" : "6", hour == 30 ? "heavyrain" : "fair_day",
                          hour == 30 ? 6.0 : 0.0);
        }
        return seriesOf(steps.join(','));
    };
    forEachLine("weather/met_norway_days.tsv", [&](const DataLine& line) {
        EXPECT_EQ(daysIn(service, hourly(line.utf8(1)), placeIn(line[0]), at(line.utf8(2))),
                  line[3].toStdString());
    });
    // What the six hours say about the extremes counts too.
    const QByteArray far = with(noonStep, "next_1_hours", "next_12_hours");
    EXPECT_EQ(daysIn(service, seriesOf(far), oslo, at("2026-06-01T12:10:00Z")),
              "2026-06-01 520200 17.5 11.0");
}

TEST(MetSymbol, KnowsWeatherByDayAndNight) {
    forEachLine("weather/met_symbols.tsv", [](const DataLine& line) {
        const auto symbol = metSymbol(line.utf8(0).toStdString());
        ASSERT_TRUE(symbol);
        EXPECT_EQ(symbol->presentWeather, line.integer(1));
        EXPECT_EQ(symbol->cloudCover, Eighths(line.number(2)));
    });
    for (const char* code : {"", "_day", "rainy", "Rain"})
        EXPECT_FALSE(metSymbol(code)) << code;
}

}  // namespace
}  // namespace zephyrix
