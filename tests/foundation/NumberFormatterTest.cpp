#include <gtest/gtest.h>

#include "foundation/NumberFormatter.h"
#include "foundation/UserLocale.h"
#include "support/DataLines.h"
#include "support/ScopedEnvironment.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

NumberFormatter formatterWithFraction(int minimum, int maximum) {
    NumberFormatter formatter;
    formatter.setMinimumFractionDigits(minimum);
    formatter.setMaximumFractionDigits(maximum);
    return formatter;
}

TEST(NumberFormatter, RoundsTheShortestTextHalfToEven) {
    forEachLine("foundation/number_texts.txt", [](const DataLine& line) {
        const NumberFormatter formatter = formatterWithFraction(static_cast<int>(line.integer(1)),
                                                                static_cast<int>(line.integer(2)));
        EXPECT_EQ(formatter.stringFromNumber(line.number(0)), line[3]);
    });
}

TEST(NumberFormatter, FollowsTheLocaleOfItsFirstText) {
    NumberFormatter formatter = formatterWithFraction(1, 1);
    {
        const ReplacedUserLocale german("de_DE");
        EXPECT_EQ(formatter.stringFromNumber(-12345.25), QStringLiteral("-12345,2"));
    }
    EXPECT_EQ(formatter.stringFromNumber(0.5), QStringLiteral("0,5"));
    formatter.setMaximumFractionDigits(2);
    EXPECT_EQ(formatter.stringFromNumber(0.25), QStringLiteral("0,25"));

    const ReplacedUserLocale swedish("sv_SE");
    EXPECT_EQ(formatterWithFraction(0, 1).stringFromNumber(-0.5), QStringLiteral("\u22120,5"));
}

TEST(NumberFormatter, PrefixAndSuffixStandBesideNumbersThatAreNotNegative) {
    NumberFormatter formatter = formatterWithFraction(1, 1);
    formatter.setPositivePrefix(QStringLiteral("<"));
    formatter.setPositiveSuffix(QStringLiteral(" %#0.'x"));
    EXPECT_EQ(formatter.stringFromNumber(0.0), QStringLiteral("<0.0 %#0.'x"));
    EXPECT_EQ(formatter.stringFromNumber(-1.0), QStringLiteral("-1.0"));
    EXPECT_EQ(formatter.stringFromNumber(-0.01), QStringLiteral("-0.0"));
    formatter.setPositiveSuffix({});
    EXPECT_EQ(formatter.stringFromNumber(2.0), QStringLiteral("<2.0"));
}

TEST(NumberFormatter, FractionLimitsGiveWayToEachOther) {
    NumberFormatter formatter;
    EXPECT_EQ(formatter.stringFromNumber(2.5), QStringLiteral("2"));
    formatter.setMinimumFractionDigits(2);
    EXPECT_EQ(formatter.stringFromNumber(2.5), QStringLiteral("2.50"));
    formatter.setMaximumFractionDigits(1);
    EXPECT_EQ(formatter.stringFromNumber(2.0), QStringLiteral("2.0"));
}

TEST(UserLocale, TheEnvironmentDecidesAsInEveryProgram) {
    forEachLine("foundation/locales.tsv", [](const DataLine& line) {
        const ScopedEnvironment environment({{"LC_ALL", line.utf8(0).constData()},
                                             {"LC_NUMERIC", line.utf8(1).constData()},
                                             {"LC_TIME", line.utf8(2).constData()},
                                             {"LANG", line.utf8(3).constData()}});
        EXPECT_EQ(UserLocale::forNumbers(), line.utf8(4));
        EXPECT_EQ(UserLocale::forDates(), line.utf8(5));
    });
}

}  // namespace
}  // namespace zephyrix
