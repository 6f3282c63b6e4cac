#include <array>

#include <gtest/gtest.h>

#include "foundation/Clock.h"
#include "support/DataLines.h"
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

TEST(FeedAnswer, JsonOfAnotherShapeLeavesTheFieldAbsentWithoutError) {
    testing::forEachLine("widget/answers.tsv", [](const testing::DataLine& line) {
        const FeedAnswer answer = FeedAnswer::fromBody(line.utf8(0), place);
        const bool observed = line.isYes(1);
        EXPECT_FALSE(answer.error);
        EXPECT_EQ(answer.document.obs.has_value(), observed);
        EXPECT_EQ(answer.document.uid.has_value(), observed);
        EXPECT_EQ(answer.document.insertDtg.has_value(), observed);
        EXPECT_EQ(answer.document.forecast.has_value(), line.isYes(2));
    });
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
