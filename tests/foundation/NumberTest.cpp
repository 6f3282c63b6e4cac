#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "foundation/Number.h"

namespace zephyrix {
namespace {

constexpr auto mostInteger = std::numeric_limits<std::int64_t>::max();
constexpr auto leastInteger = std::numeric_limits<std::int64_t>::min();

TEST(Number, IntegerValueTruncatesAndSaturates) {
    EXPECT_EQ(Number(-2.7).integerValue(), -2);
    EXPECT_EQ(Number(2.999F).integerValue(), 2);
    EXPECT_EQ(Number(9223372036854775807.0).integerValue(), mostInteger);
    EXPECT_EQ(Number(-9223372036854775808.0).integerValue(), leastInteger);
    EXPECT_EQ(Number(-1e300).integerValue(), leastInteger);
    EXPECT_EQ(Number(std::nan("")).integerValue(), 0);
}

TEST(Number, KeepsItsKindThroughAVariant) {
    for (const Number& number : {Number(3), Number(3.0F), Number(3.0)}) {
        const auto again = Number::fromVariant(number.toVariant());
        ASSERT_TRUE(again);
        EXPECT_EQ(again->kind(), number.kind());
        EXPECT_EQ(*again, number);
    }
}

TEST(Number, OnlyNumbersAreNumbers) {
    EXPECT_FALSE(Number::fromVariant(true));
    EXPECT_FALSE(Number::fromVariant(QStringLiteral("3")));
    EXPECT_FALSE(Number::fromVariant({}));
    EXPECT_TRUE(Number::fromVariant(3U));
    EXPECT_EQ(Number::fromVariant(std::numeric_limits<qulonglong>::max())->integerValue(),
              mostInteger);
}

TEST(Number, TextIsTheShortestThatReadsBack) {
    EXPECT_EQ(Number(12345).text(), QStringLiteral("12345"));
    EXPECT_EQ(Number(52.53F).text(), QStringLiteral("52.53"));
    EXPECT_EQ(Number(static_cast<double>(52.53F)).text(), QStringLiteral("52.529998779296875"));
    EXPECT_EQ(Number(0.1).text(), QStringLiteral("0.1"));
    EXPECT_EQ(Number(2123200.0).text(), QStringLiteral("2123200"));
    EXPECT_EQ(Number(1e6F).text(), QStringLiteral("1000000"));
    EXPECT_EQ(Number(-1e16).text(), QStringLiteral("-10000000000000000"));
    EXPECT_EQ(Number(1e300).text(), QStringLiteral("1e+300"));
}

TEST(Number, IdentityIsTheBoxNotTheValue) {
    const Number five(5);
    const Number copy = five;
    EXPECT_TRUE(five.isSameObject(copy));
    EXPECT_FALSE(five.isSameObject(Number(5)));
    EXPECT_EQ(five, Number(5.0));
}

TEST(Number, AnyEntryHasAnIntegerValue) {
    EXPECT_EQ(integerValueOf({}), 0);
    EXPECT_EQ(integerValueOf(true), 1);
    EXPECT_EQ(integerValueOf(-7.9), -7);
    EXPECT_EQ(integerValueOf(QStringLiteral(" 42 km")), 42);
    EXPECT_EQ(integerValueOf(QStringLiteral("km 42")), 0);
    EXPECT_EQ(integerValueOf(QStringLiteral("-99999999999999999999")), leastInteger);
    EXPECT_EQ(integerValueOf(QVariantList{1}), 0);
}

TEST(Number, AnyEntryHasADoubleValue) {
    EXPECT_EQ(doubleValueOf(QStringLiteral("13.38 east")), 13.38);
    EXPECT_EQ(doubleValueOf(QStringLiteral("-.5e1")), -5.0);
    EXPECT_EQ(doubleValueOf(QStringLiteral("nan")), 0.0);
    EXPECT_EQ(doubleValueOf(false), 0.0);
    EXPECT_EQ(doubleValueOf(7), 7.0);
}

}  // namespace
}  // namespace zephyrix
