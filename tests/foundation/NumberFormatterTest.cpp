#include <limits>

#include <gtest/gtest.h>

#include "foundation/NumberFormatter.h"
#include "foundation/UserLocale.h"
#include "support/DataLines.h"
#include "support/ScopedEnvironment.h"

namespace zephyrix {
namespace {

using testing::dataLines;
using testing::ScopedEnvironment;

NumberFormatter formatterWithFraction(int minimum, int maximum) {
    NumberFormatter formatter;
    formatter.setMinimumFractionDigits(minimum);
    formatter.setMaximumFractionDigits(maximum);
    return formatter;
}

TEST(NumberFormatter, RoundsTheShortestTextHalfToEven) {
    for (const QStringList& line : dataLines(QStringLiteral("foundation/number_texts.txt"))) {
        const NumberFormatter formatter = formatterWithFraction(line[1].toInt(), line[2].toInt());
        EXPECT_EQ(formatter.stringFromNumber(line[0].toDouble()), line[3])
            << qPrintable(line.join(u' '));
    }
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

struct LocaleCase {
    const char* all;
    const char* numeric;
    const char* time;
    const char* lang;
    const char* numbers;
    const char* dates;
    const char* why;
};

TEST(UserLocale, TheEnvironmentDecidesAsInEveryProgram) {
    const LocaleCase cases[] = {
        {"", "", "", "", "en_US_POSIX", "en_US_POSIX", "nothing is set"},
        {"", "", "", "C.UTF-8", "en_US_POSIX", "en_US_POSIX", "the C locale"},
        {"", "", "", "de_AT.UTF-8", "de_AT", "de_AT", "the language alone"},
        {"", "fr_FR", "sv_SE.utf8", "de_DE", "fr_FR", "sv_SE", "each category its own"},
        {"POSIX", "fr_FR", "sv_SE", "de_DE", "en_US_POSIX", "en_US_POSIX", "LC_ALL wins"},
        {"", "", "", "de_DE@euro", "de_DE", "de_DE", "a modifier without meaning here"},
        {"", "", "", "sr_RS.UTF-8@latin", "sr_Latn_RS", "sr_Latn_RS", "a script"},
        {"", "", "", "eo", "eo", "eo", "a language without a country"},
    };
    for (const LocaleCase& c : cases) {
        const ScopedEnvironment environment(
            {{"LC_ALL", c.all}, {"LC_NUMERIC", c.numeric}, {"LC_TIME", c.time}, {"LANG", c.lang}});
        EXPECT_STREQ(UserLocale::forNumbers().constData(), c.numbers) << c.why;
        EXPECT_STREQ(UserLocale::forDates().constData(), c.dates) << c.why;
    }
}

}  // namespace
}  // namespace zephyrix
