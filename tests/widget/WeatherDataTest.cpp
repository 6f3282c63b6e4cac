#include <array>

#include <QDateTime>
#include <QJsonDocument>
#include <gtest/gtest.h>

#include "widget/WeatherData.h"

namespace zephyrix {
namespace {

QVariantMap fromJson(const char* text) {
    return QJsonDocument::fromJson(text).toVariant().toMap();
}

TEST(WeatherData, SurvivesItsDictionaryForm) {
    WeatherData fetched;
    fetched.insertDtg = Instant::fromSecondsSince1970(1433152800.5);
    fetched.uid = Number(18228265);
    fetched.obs = Obs(fromJson(R"({"date": 1433152000, "symbol": 1000000, "unknown": [1]})"));
    fetched.forecast = fromJson(R"({"a": [{"date": "2015-06-01"}, {}]})").value("a").toList();
    const QVariantMap stored = fetched.asDict();
    EXPECT_EQ(stored.value("insertDtg").typeId(), QMetaType::QDateTime);

    const WeatherData restored(stored);
    EXPECT_EQ(restored.insertDtg, fetched.insertDtg);
    EXPECT_EQ(restored.uid, fetched.uid);
    EXPECT_EQ(restored.forecast, fetched.forecast);
    EXPECT_TRUE(restored.isValid());
    EXPECT_EQ(restored.asDict(), stored);
}

TEST(WeatherData, CachedValueOfTheWrongTypeIsAbsent) {
    const WeatherData document(
        fromJson(R"({"insertDtg": 1433152800, "uid": "5", "obs": {}, "forecast": [{}, 3]})"));
    EXPECT_FALSE(document.insertDtg || document.uid || document.forecast);
    EXPECT_TRUE(document.obs);
    EXPECT_FALSE(document.isValid());
}

TEST(WeatherDataDeathTest, CacheWithoutObservationStopsTheProcess) {
    for (const char* cached : {R"({"uid": 5})", R"({"uid": 5, "obs": [{}]})", R"({"obs": null})"})
        EXPECT_DEATH(WeatherData{fromJson(cached)}, "fatal error: .*no \"obs\"") << cached;
}

}  // namespace
}  // namespace zephyrix
