#include <limits>

#include <gtest/gtest.h>

#include "foundation/Number.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

QVariant operandOf(const DataLine& line) {
    if (line[1] == u"text")
        return line[2];
    if (line[1] == u"bool")
        return line.number(2) != 0.0;
    if (line[1] == u"int")
        return line.integer(2);
    if (line[1] == u"float")
        return static_cast<float>(line.number(2));
    return line[1] == u"double" ? line.number(2) : static_cast<float>(line.number(2)) * 1.0;
}

TEST(Number, HasTheValueAndTextOfTheTable) {
    forEachLine("foundation/numbers.tsv", [](const DataLine& line) {
        const QVariant operand = operandOf(line);
        const auto number = Number::fromVariant(operand);
        if (line[0] == u"text") {
            ASSERT_TRUE(number);
            EXPECT_EQ(number->text(), line[3]);
        } else if (line[0] == u"integer") {
            EXPECT_EQ(integerValueOf(operand), line.integer(3));
            EXPECT_TRUE(!number || number->integerValue() == line.integer(3));
        } else {
            EXPECT_EQ(doubleValueOf(operand), line.number(3));
        }
    });
    EXPECT_EQ(integerValueOf({}), 0);
    EXPECT_EQ(integerValueOf(QVariantList{1}), 0);
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
              std::numeric_limits<std::int64_t>::max());
}

TEST(Number, IdentityIsTheBoxNotTheValue) {
    const Number five(5);
    const Number copy = five;
    EXPECT_TRUE(five.isSameObject(copy));
    EXPECT_FALSE(five.isSameObject(Number(5)));
    EXPECT_EQ(five, Number(5.0));
}

}  // namespace
}  // namespace zephyrix
