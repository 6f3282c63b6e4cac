#include <limits>

#include <gtest/gtest.h>

#include "foundation/DateFormatter.h"
#include "foundation/UserLocale.h"
#include "support/DataLines.h"
#include "support/ScopedEnvironment.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

const QString dateTimePattern = QStringLiteral("yyyy-MM-dd'T'HH:mm:ssZZZZZ");
const QString dayPattern = QStringLiteral("yyyy-MM-dd");

DateFormatter formatterFor(const QString& pattern, const QByteArray& zone) {
    DateFormatter formatter;
    formatter.setDateFormat(pattern);
    formatter.setLocale("en_US_POSIX");
    formatter.setTimeZone(QTimeZone(zone));
    return formatter;
}

/// Without the kind of blank, which the locale data changes from time to time.
QString withPlainBlanks(QString text) {
    return text.replace(QChar(0x202F), u' ').replace(QChar(0x00A0), u' ');
}

TEST(DateFormatter, WritesAndReadsLocalDatesOfTheSystemsZoneData) {
    forEachLine("foundation/date_texts.txt", [](const DataLine& line) {
        const DateFormatter formatter = formatterFor(dateTimePattern, line.utf8(0));
        const Instant instant = Instant::fromSecondsSince1970(line.number(1));
        EXPECT_EQ(formatter.stringFromDate(instant), line[2]);
        EXPECT_EQ(formatter.dateFromString(line[2]), instant);
        EXPECT_EQ(formatterFor(QStringLiteral("D"), line.utf8(0)).stringFromDate(instant), line[3]);
    });
}

TEST(DateFormatter, ADayBeginsAtTheFirstMomentOfItsLocalMidnight) {
    const DateFormatter utc = formatterFor(dateTimePattern, "UTC");
    forEachLine("foundation/midnights.tsv", [&](const DataLine& line) {
        const auto midnight = formatterFor(dayPattern, line.utf8(0)).dateFromString(line[1]);
        ASSERT_TRUE(midnight);
        EXPECT_EQ(utc.stringFromDate(*midnight), line[2]);
    });
}

TEST(DateFormatter, ReadsNothingButTheExactForm) {
    const DateFormatter dateTime = formatterFor(dateTimePattern, "UTC");
    const DateFormatter day = formatterFor(dayPattern, "Europe/Berlin");
    EXPECT_FALSE(dateTime.dateFromString({}));
    forEachLine("foundation/bad_dates.tsv", [&](const DataLine& line) {
        EXPECT_FALSE((line[0] == u"day" ? day : dateTime).dateFromString(line[1]));
    });
}

TEST(DateFormatter, TimesAndDaysFollowTheUsersLocale) {
    // 23:30 UTC on a Monday is half past one on Tuesday two hours east.
    const Instant instant = Instant::fromSecondsSince1970(1433201400);
    forEachLine("foundation/date_styles.tsv", [&](const DataLine& line) {
        const ReplacedUserLocale locale(line.utf8(0).constData());
        DateFormatter formatter;
        formatter.setTimeZone(QTimeZone("Europe/Berlin"));
        EXPECT_EQ(formatter.stringFromDate(instant), QString()) << "no form at all";
        formatter.setTimeStyle(DateFormatter::Style::Short);
        EXPECT_EQ(withPlainBlanks(formatter.stringFromDate(instant)), line[1]);
        formatter.setDateFormat(QStringLiteral("EEE"));
        EXPECT_EQ(formatter.stringFromDate(instant), line[2]);
    });
    const ReplacedUserLocale thai("th_TH");
    DateFormatter year;
    year.setDateFormat(QStringLiteral("yyyy"));
    EXPECT_EQ(year.stringFromDate(instant), QStringLiteral("2015")) << "the calendar is Gregorian";
}

TEST(DateFormatter, WithoutAZoneItFollowsTheSystems) {
    DateFormatter formatter;
    formatter.setDateFormat(QStringLiteral("HH:mm"));
    const Instant epoch;
    EXPECT_EQ(formatter.stringFromDate(epoch), QStringLiteral("01:00"));
    formatter.setTimeZone(QTimeZone("Asia/Tokyo"));
    EXPECT_EQ(formatter.stringFromDate(epoch), QStringLiteral("09:00"));

    const ScopedEnvironment moved({{"TZ", "Asia/Kathmandu"}});
    formatter.setTimeZone(std::nullopt);
    EXPECT_EQ(formatter.stringFromDate(epoch), QStringLiteral("05:30"));
    formatter.setTimeZone(QTimeZone("No/Such"));
    EXPECT_EQ(formatter.stringFromDate(epoch), QStringLiteral("05:30"));
}

TEST(DateFormatter, FractionsBelongToTheSecondThatHasBegun) {
    const DateFormatter utc = formatterFor(dateTimePattern, "UTC");
    EXPECT_EQ(utc.stringFromDate(Instant::fromSecondsSince1970(0.9)),
              QStringLiteral("1970-01-01T00:00:00Z"));
    EXPECT_EQ(utc.stringFromDate(Instant::fromSecondsSince1970(-0.1)),
              QStringLiteral("1969-12-31T23:59:59Z"));
}

TEST(DateFormatter, AnInstantBeyondAllCalendarsHasNoText) {
    const DateFormatter utc = formatterFor(dateTimePattern, "UTC");
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double seconds :
         {infinity, -infinity, std::numeric_limits<double>::quiet_NaN(), 1e300, -1e15})
        EXPECT_EQ(utc.stringFromDate(Instant::fromSecondsSince1970(seconds)), QString());
}

TEST(DateFormatterDeathTest, APatternThatCannotBeReadStops) {
    const DateFormatter formatter = formatterFor(QStringLiteral("EEE"), "UTC");
    EXPECT_DEATH(static_cast<void>(formatter.dateFromString(QStringLiteral("Mon"))),
                 "fatal error: .*\"EEE\"");
}

}  // namespace
}  // namespace zephyrix
