#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

#include "feed/DemonstrationWeather.h"
#include "feed/FeedDocument.h"
#include "foundation/TimeZone.h"
#include "model/Obs.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

QTimeZone zone(const char* name) {
    return timeZoneWithName(QString::fromLatin1(name));
}

const Instant noon = Instant::fromSecondsSince1970(1433152800.0);  // 2015-06-01 10:00:00 UTC

QJsonObject documentOf(const Weather& weather, const char* zoneName = "Europe/Berlin") {
    return QJsonDocument::fromJson(feedDocument(weather, zone(zoneName))).object();
}

QJsonObject lastObsOf(const QJsonObject& document) {
    return document[QLatin1String("obs")][QLatin1String("lastObs")].toObject();
}

QJsonArray daysOf(const QJsonObject& document) {
    return document[QLatin1String("forecast")][QLatin1String("days")][QLatin1String("day")]
        .toArray();
}

TEST(FeedDocument, IsWrittenInTheFormOfTheFeed) {
    const Weather weather{
        .source = QStringLiteral("test"),
        .observation = Observation{.time = noon,
                                   .symbol = 1121100,
                                   .temperature = Celsius(-0.04999),  // a tenth: no "-0"
                                   .windSpeed = Knots(12),
                                   .precipitation = Millimetres(0.1 + 0.2)},
        .days = std::vector{ForecastDay{.date = {2015, 6, 1}, .symbol = 1000000},
                            ForecastDay{.date = {2015, 6, 2}, .highest = Celsius(21.25)}}};
    EXPECT_EQ(feedDocument(weather, zone("Europe/Berlin")) + '\n',
              dataFile(QStringLiteral("feed/document.json")));
}

TEST(FeedDocument, NamesItsSourceWhereThePanelKeepsIt) {
    const QJsonObject lastObs = lastObsOf(
        documentOf({.source = QStringLiteral("test"),
                    .observation = Observation{.time = noon,
                                               .precipitation = Millimetres(0.4),
                                               .precipitationPeriod = Hours(0.25),
                                               .precipitationTime = PrecipitationTime::After},
                    .licence = QStringLiteral("CC BY 4.0"),
                    .sourceUrl = QStringLiteral("https://example.org/"),
                    .fetched = noon.addingSeconds(61.0)}));
    EXPECT_EQ(lastObs[QStringLiteral("licence")], QStringLiteral("CC BY 4.0"));
    EXPECT_EQ(lastObs[QStringLiteral("sourceUrl")], QStringLiteral("https://example.org/"));
    EXPECT_EQ(lastObs[QStringLiteral("fetched")], QStringLiteral("2015-06-01T10:01:01+00:00"));
    EXPECT_EQ(lastObs[QStringLiteral("rrrh")], 0.25);
    EXPECT_EQ(lastObs[QStringLiteral("rrrnext")], true);
}

TEST(FeedDocument, TimesCarryTheOffsetOfThePlace) {
    forEachLine("feed/offsets.tsv", [](const DataLine& line) {
        const QJsonObject lastObs = lastObsOf(
            documentOf({.source = QStringLiteral("test"), .observation = Observation{.time = noon}},
                       line.utf8(0).constData()));
        EXPECT_EQ(lastObs.value(QStringLiteral("datetime")), line[1]);
        EXPECT_EQ(Obs(lastObs.toVariantMap()).date, noon);  // as the panel reads it
    });
}

TEST(FeedDocument, EveryScenarioShowsWhatItIsNamedFor) {
    const Place place{1, 52.53, 13.38, zone("Europe/Berlin")};
    std::size_t checked = 1;  // "changing" has no symbol of its own
    forEachLine("feed/scenarios.tsv", [&](const DataLine& line) {
        const Scenario* const scenario = scenarioNamed(line.utf8(0).toStdString());
        ASSERT_NE(scenario, nullptr);
        ++checked;
        const QJsonObject document =
            documentOf(*DemonstrationWeather(*scenario).weatherAt(place, noon));
        EXPECT_EQ(daysOf(document).size(), line.integer(3));
        EXPECT_EQ(document.contains(QStringLiteral("forecast")), line.integer(3) > 0);
        const bool observed = scenario->content != Scenario::Content::NoObservation;
        EXPECT_EQ(document.contains(QStringLiteral("obs")), observed);
        const Obs obs(lastObsOf(document).toVariantMap());
        EXPECT_EQ(obs.isValid(), observed);
        EXPECT_TRUE(line[1] == u"any" || obs.symbol == Number(line.integer(1)));
        EXPECT_TRUE(line[2] == u"any" || std::abs(obs.tt->doubleValue() - line.number(2)) < 6.0);
    });
    EXPECT_EQ(checked, scenarios().size());
    EXPECT_EQ(scenarioNamed("Rain"), nullptr);
}

TEST(FeedDocument, InTheMissingScenarioEveryNumberIsMissing) {
    const QJsonObject document = documentOf(*DemonstrationWeather(*scenarioNamed("missing"))
                                                 .weatherAt({1, 1.0, 2.0, zone("UTC")}, noon));
    int numbers = 0;
    const auto expectMissing = [&](const QJsonObject& object) {
        for (auto entry = object.begin(); entry != object.end(); ++entry)
            if (!entry.value().isString()) {
                EXPECT_EQ(entry.value(), QJsonValue(entry.key() == u"symbol" ? 0 : -9999));
                ++numbers;
            }
    };
    expectMissing(lastObsOf(document));
    for (const QJsonValue day : daysOf(document))
        expectMissing(day.toObject());
    EXPECT_EQ(numbers, 11 + 6 * 3);
}

}  // namespace
}  // namespace zephyrix
