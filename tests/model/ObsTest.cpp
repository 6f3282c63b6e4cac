#include <array>

#include <QDateTime>
#include <QJsonDocument>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "foundation/Description.h"
#include "model/Obs.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using ::testing::HasSubstr;
using ::testing::internal::CaptureStderr;
using ::testing::internal::GetCapturedStderr;

QVariantMap fromJson(const char* text) {
    return QJsonDocument::fromJson(text).toVariant().toMap();
}

TEST(Obs, ReadsEachFieldFromItsOwnKey) {
    const Obs obs(fromJson(R"({"date": 1433152800.25, "symbol": 1, "tt": 2, "td": 3, "dd": 4,
        "ff": 5, "ffg": 6, "rrr": 7, "rrrh": 8, "n": 9, "ww": 10, "ppp": -9999, "TT": 99})"));
    const std::array fields{obs.symbol, obs.tt,   obs.td, obs.dd, obs.ff, obs.ffg,
                            obs.rrr,    obs.rrrh, obs.n,  obs.ww, obs.ppp};
    const std::array values{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, -9999};
    for (std::size_t i = 0; i < fields.size(); ++i)
        EXPECT_EQ(fields[i], Number(values[i])) << i;
    EXPECT_EQ(obs.date, Instant::fromSecondsSince1970(1433152800.25));
    EXPECT_TRUE(obs.isValid());
}

TEST(Obs, ValueOfTheWrongTypeIsAbsentAndTold) {
    const QVariantMap wrong = fromJson(
        R"({"date": "1433152800", "datetime": 1433152800, "symbol": "3", "tt": true, "td": null,
            "dd": [1, {"a": 2.5}]})");
    CaptureStderr();
    const Obs obs(wrong);
    const std::string log = GetCapturedStderr();
    EXPECT_FALSE(obs.date || obs.symbol || obs.tt || obs.td || obs.dd);
    for (const char* line :
         {"object 3 is not a number!\n", "object true is not a number!\n",
          "object <null> is not a number!\n", "object (1, {a = 2.5}) is not a number!\n"})
        EXPECT_THAT(log, HasSubstr(line));
    EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 4);  // dates are dropped in silence
    EXPECT_FALSE(obs.isValid());
}

TEST(Obs, IsValidOnlyWithDateAndSymbol) {
    EXPECT_FALSE(Obs(fromJson(R"({"symbol": 3})")).isValid());
    EXPECT_FALSE(Obs(fromJson(R"({"date": 0})")).isValid());
    EXPECT_TRUE(Obs(fromJson(R"({"date": 0, "symbol": 0})")).isValid());
}

TEST(Obs, OfTwoDatesTheLastVisitedWins) {
    const auto bothAt = [](const QVariant& dateTime) {
        return Obs({{QStringLiteral("date"), 5}, {QStringLiteral("datetime"), dateTime}}).date;
    };
    EXPECT_EQ(bothAt(QStringLiteral("1970-01-01T00:00:09Z")), Instant::fromSecondsSince1970(9));
    EXPECT_EQ(bothAt(QStringLiteral("rubbish")), std::nullopt);
}

TEST(Obs, GivesBackItsDictionaryUnchanged) {
    const QVariantMap dictionary = fromJson(
        R"({"datetime": "2015-06-01T12:00:00Z", "symbol": 1000000, "tt": 1.5, "extra": [null]})");
    Obs obs(dictionary);
    obs.tt = Number(99);
    EXPECT_EQ(obs.asDict(), dictionary);
    obs.dict.reset();
    EXPECT_EQ(obs.asDict(), QVariantMap());
}

constexpr Instant tenOClock = Instant::fromSecondsSince1970(1433152800.0);

TEST(Obs, TakesDateTextsStrictly) {
    testing::forEachLine("model/date_texts.tsv", [](const testing::DataLine& line) {
        const auto date = Obs::dateFromISO8601DateTimeString(line[0]);
        EXPECT_EQ(date.has_value(), line.isYes(1));
        EXPECT_EQ(date.value_or(tenOClock), tenOClock);
    });
    EXPECT_FALSE(Obs::dateFromISO8601DateTimeString({}));
}

TEST(Obs, TakesDateObjectsAsTheyStand) {
    const Instant instant = tenOClock.addingSeconds(0.5);
    EXPECT_EQ(Obs::dateFromObject(instant.toDateTime()), instant);
    EXPECT_EQ(Obs::dateFromObject(QVariant::fromValue(instant)), instant);
    EXPECT_EQ(Obs::dateFromObject(QDateTime()), std::nullopt);
    EXPECT_EQ(Obs::dateFromObject(true), std::nullopt);
    EXPECT_EQ(Obs::dateFromObject({}), std::nullopt);
}

}  // namespace
}  // namespace zephyrix
