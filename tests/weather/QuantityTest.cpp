#include <concepts>
#include <optional>

#include <gtest/gtest.h>

#include "weather/ReadJson.h"
#include "weather/Weather.h"

namespace zephyrix {
namespace {

template <typename From, typename To>
concept Becomes = std::convertible_to<From, To> || std::constructible_from<To, From> ||
                  std::assignable_from < std::optional<To>
&, From > ;
template <typename Left, typename Right>
concept Compares = requires(Left a, Right b) {
    a < b;
}
|| requires(Left a, Right b) {
    a == b;
};
template <typename T>
concept CanBeRead = requires(const Measurements& values) {
    values.get<T>("key");
};
template <typename T>
concept BecomesKnots = requires(T speed) {
    toKnots(speed);
};

// No unit becomes another unasked, nor a bare number one.
static_assert(!Becomes<MetresPerSecond, Knots> && !Becomes<KilometresPerHour, Knots>);
static_assert(!Becomes<MetresPerSecond, KilometresPerHour>);
static_assert(!Becomes<Percent, Eighths> && !Becomes<Seconds, Hours>);
static_assert(!std::convertible_to<double, Knots> && !std::convertible_to<Knots, double>);
static_assert(!std::assignable_from<std::optional<Knots>&, double>);
static_assert(!Compares<MetresPerSecond, Knots> && Compares<Knots, Knots>);
// Only speeds become knots, and knots need not; only units with known limits can be read.
static_assert(BecomesKnots<MetresPerSecond> && BecomesKnots<KilometresPerHour>);
static_assert(!BecomesKnots<Knots> && !BecomesKnots<Celsius> && !BecomesKnots<double>);
static_assert(CanBeRead<Celsius>);

constexpr bool isNear(double a, double b) {
    return a - b < 1e-9 && b - a < 1e-9;
}

// A nautical mile is 1852 m.
static_assert(isNear(toKnots(MetresPerSecond(463.0)).value(), 900.0));
static_assert(isNear(toKnots(KilometresPerHour(18.52)).value(), 10.0));
static_assert(toHours(Seconds(900.0)) == Hours(0.25));
static_assert(toEighths(Percent(0.0)) == Eighths(0) && toEighths(Percent(100.0)) == Eighths(8));
static_assert(toEighths(Percent(6.2)) == Eighths(0) && toEighths(Percent(6.25)) == Eighths(1));
static_assert(toEighths(Percent(93.7)) == Eighths(7) && toEighths(Percent(93.8)) == Eighths(8));

TEST(Measurements, GiveOutOnlyWhatTheUnitCanBe) {
    const QJsonObject values = jsonObject(R"({"a": 12.5, "b": 1e300, "c": "12.5", "d": true,
        "e": null, "f": [12.5], "g": -0.1, "h": 300})");
    const Measurements measured(values, jsonObject(R"({"a": "m/s", "g": 7})"));
    EXPECT_EQ(measured.get<MetresPerSecond>("a"), MetresPerSecond(12.5));
    EXPECT_EQ(measured.get<Knots>("a"), std::nullopt);  // the service says that it is in m/s
    EXPECT_EQ(measured.get<Celsius>("g"), Celsius(-0.1));
    EXPECT_EQ(measured.get<Knots>("g"), std::nullopt);
    EXPECT_EQ(measured.get<Knots>("h"), Knots(300));
    for (const char* key : {"b", "c", "d", "e", "f", "missing"})
        EXPECT_EQ(measured.get<MetresPerSecond>(key), std::nullopt) << key;
}

TEST(ReadJson, TakesOnlyTimesThatMeanOneInstant) {
    const auto seconds = [](const char* text) {
        const auto time = isoTime(QString::fromLatin1(text));
        return time ? time->secondsSince1970() : -1.0;
    };
    EXPECT_EQ(seconds("2026-06-01T12:00:00Z"), 1780315200.0);
    EXPECT_EQ(seconds("2026-06-01T14:00:00+02:00"), 1780315200.0);
    for (const char* text : {"2026-06-01T12:00:00", "2026-06-01", "", "2026-13-01T12:00:00Z",
                             "1969-12-31T23:59:59Z", "9999-01-01T00:00:00Z"})
        EXPECT_EQ(seconds(text), -1.0) << text;
    EXPECT_EQ(unixTime(QJsonValue(1e300)), std::nullopt);
}

}  // namespace
}  // namespace zephyrix
