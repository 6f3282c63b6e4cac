#include <array>

#include <gtest/gtest.h>

#include "foundation/Clock.h"
#include "widget/FeedAnswer.h"

namespace zephyrix {
namespace {

const Number place(18228265);

TEST(FeedAnswer, TakesObservationAndForecast) {
    const Instant now = Instant::fromSecondsSince1970(1433152800.75);
    const ReplacedClock clock([&] { return now; });
    const FeedAnswer answer = FeedAnswer::fromBody(
        R"({"obs": {"lastObs": {"date": 1433152000, "symbol": 1000000}},
            "forecast": {"days": {"day": [{"date": "2015-06-01", "tx": null}, {}]}}})",
        place);
    EXPECT_FALSE(answer.error);
    EXPECT_TRUE(answer.document.isValid());
    EXPECT_EQ(answer.document.uid, place);
    EXPECT_EQ(answer.document.insertDtg, now);
    ASSERT_TRUE(answer.document.forecast);
    EXPECT_EQ(answer.document.forecast->size(), 2);
    EXPECT_TRUE(answer.document.forecast->first().toMap().contains("tx"));
}

struct Body {
    QByteArray json;
    bool obs;
    bool forecast;
};

TEST(FeedAnswer, JsonOfAnotherShapeLeavesTheFieldAbsentWithoutError) {
    const std::array bodies{
        Body{"", false, false},
        Body{"{}", false, false},
        Body{"[]", false, false},
        Body{R"([{"obs": {"lastObs": {}}}])", false, false},
        Body{R"({"obs": {"lastObs": {}}})", true, false},
        Body{R"({"obs": {"lastObs": [{}]}, "forecast": {"days": {"day": []}}})", false, true},
        Body{R"({"obs": [{"lastObs": {}}], "forecast": {"days": {"day": [{}]}}})", false, true},
        Body{R"({"obs": {"lastObs": {}}, "forecast": {"days": {"day": {}}}})", true, false},
        Body{R"({"obs": {"lastObs": {}}, "forecast": {"days": {"day": [{}, 1]}}})", true, false},
        Body{R"({"obs": {"lastObs": {}}, "forecast": {"days": [{}]}})", true, false},
        Body{R"({"obs": {"lastObs": {}}, "forecast": null})", true, false},
    };
    for (const Body& body : bodies) {
        const FeedAnswer answer = FeedAnswer::fromBody(body.json, place);
        EXPECT_FALSE(answer.error) << body.json.toStdString();
        EXPECT_EQ(answer.document.obs.has_value(), body.obs) << body.json.toStdString();
        EXPECT_EQ(answer.document.uid.has_value(), body.obs) << body.json.toStdString();
        EXPECT_EQ(answer.document.insertDtg.has_value(), body.obs) << body.json.toStdString();
        EXPECT_EQ(answer.document.forecast.has_value(), body.forecast) << body.json.toStdString();
    }
}

TEST(FeedAnswer, WhatIsNoJsonIsTheParsersError) {
    const std::array<QByteArray, 6> bodies{"<html>Not found</html>", R"({"obs": {"lastObs": )", "3",
                                           " ", "{} {}",
                                           // deeper than any parser should follow
                                           QByteArray(100'000, '[')};
    for (const QByteArray& body : bodies) {
        const FeedAnswer answer = FeedAnswer::fromBody(body, place);
        ASSERT_TRUE(answer.error) << body.left(40).toStdString();
        EXPECT_EQ(answer.error->domain, FeedError::parserDomain);
        EXPECT_TRUE(answer.document.asDict().isEmpty());
    }
}

}  // namespace
}  // namespace zephyrix
