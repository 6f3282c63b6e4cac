#include <limits>

#include <gtest/gtest.h>

#include "foundation/DateFormatter.h"
#include "foundation/UserLocale.h"
#include "support/DataLines.h"
#include "support/ScopedEnvironment.h"

namespace zephyrix {
namespace {

using testing::dataLines;
using testing::ScopedEnvironment;

const QString dateTimePattern = QStringLiteral("yyyy-MM-dd'T'HH:mm:ssZZZZZ");
const QString dayPattern = QStringLiteral("yyyy-MM-dd");

DateFormatter formatterFor(const QString& pattern, const char* zone) {
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
    for (const QStringList& line : dataLines(QStringLiteral("foundation/date_texts.txt"))) {
        const DateFormatter formatter = formatterFor(dateTimePattern, line[0].toUtf8().constData());
        const Instant instant = Instant::fromSecondsSince1970(line[1].toDouble());
        EXPECT_EQ(formatter.stringFromDate(instant), line[2]);
        EXPECT_EQ(formatter.dateFromString(line[2]), instant) << qPrintable(line[2]);

        const DateFormatter dayOfYear =
            formatterFor(QStringLiteral("D"), line[0].toUtf8().constData());
        EXPECT_EQ(dayOfYear.stringFromDate(instant), line[3]) << qPrintable(line[2]);
    }
}

struct DayCase {
    const char* zone;
    const char* day;
    const char* instant;
    const char* why;
};

TEST(DateFormatter, ADayBeginsAtTheFirstMomentOfItsLocalMidnight) {
    const DayCase cases[] = {
        {"Europe/Berlin", "2015-06-01", "2015-05-31T22:00:00Z", "summer time"},
        {"America/Sao_Paulo", "2018-11-04", "2018-11-04T03:00:00Z", "midnight is skipped"},
        {"America/Havana", "2015-11-01", "2015-11-01T04:00:00Z", "the hour after midnight twice"},
        {"Atlantic/Azores", "2015-10-25", "2015-10-25T00:00:00Z", "midnight twice: the first"},
        {"Pacific/Apia", "2011-12-30", "2011-12-30T10:00:00Z", "a day that was left out"},
        {"Asia/Kathmandu", "2015-06-01", "2015-05-31T18:15:00Z", "a quarter of an hour"},
        {"UTC", "2016-02-29", "2016-02-29T00:00:00Z", "leap day"},
    };
    const DateFormatter utc = formatterFor(dateTimePattern, "UTC");
    for (const DayCase& c : cases) {
        const auto midnight =
            formatterFor(dayPattern, c.zone).dateFromString(QString::fromLatin1(c.day));
        ASSERT_TRUE(midnight) << c.why;
        EXPECT_EQ(utc.stringFromDate(*midnight), QString::fromLatin1(c.instant)) << c.why;
    }
}

TEST(DateFormatter, ReadsNothingButTheExactForm) {
    const DateFormatter dateTime = formatterFor(dateTimePattern, "UTC");
    const char* const badDateTimes[] = {
        "",
        " 2015-06-01T10:00:00Z",
        "2015-06-01T10:00:00Z ",
        "2015-06-01T10:00:00",
        "2015-06-01 10:00:00Z",
        "2015-06-01t10:00:00Z",
        "2015-06-01T10:00:00z",
        "2015-6-1T10:00:00Z",
        "15-06-01T10:00:00Z",
        "12015-06-01T10:00:00Z",
        "2015-Jun-01T10:00:00Z",
        "2015-06-01T24:00:00Z",
        "2015-06-01T10:60:00Z",
        "2015-06-01T10:00:60Z",
        "2015-06-01T10:00:00.5Z",
        "2015-06-01T10:00:00+0200",
        "2015-06-01T10:00:00+02",
        "2015-06-01T10:00:00+25:00",
        "2015-06-01T10:00:00+02:60",
        "2015-06-01T10:00:00GMT",
        "2015-06-01T-1:00:00Z",
    };
    for (const char* text : badDateTimes)
        EXPECT_FALSE(dateTime.dateFromString(QString::fromUtf8(text))) << text;

    const DateFormatter day = formatterFor(dayPattern, "Europe/Berlin");
    const char* const badDays[] = {"2015-02-29", "2015-13-01", "2015-00-01",           "2015-01-00",
                                   "2015-04-31", "0000-01-01", "2015-06-01T00:00:00Z", "2015/06/01",
                                   "٢٠١٥-٠٦-٠١", "tomorrow"};
    for (const char* text : badDays)
        EXPECT_FALSE(day.dateFromString(QString::fromUtf8(text))) << text;
}

struct StyleCase {
    const char* locale;
    const char* time;
    const char* weekday;
};

TEST(DateFormatter, TimesAndDaysFollowTheUsersLocale) {
    const StyleCase cases[] = {
        {"en_US", "1:30 AM", "Tue"},
        {"de_DE", "01:30", "Di."},
        {"fr_FR", "01:30", "mar."},
        {"ru_RU", "01:30", "вт"},
    };
    // 23:30 UTC on a Monday is half past one on Tuesday two hours east.
    const Instant instant = Instant::fromSecondsSince1970(1433201400);
    for (const StyleCase& c : cases) {
        const ReplacedUserLocale locale(c.locale);
        DateFormatter formatter;
        formatter.setTimeZone(QTimeZone("Europe/Berlin"));
        EXPECT_EQ(formatter.stringFromDate(instant), QString()) << "no form at all";
        formatter.setTimeStyle(DateFormatter::Style::Short);
        EXPECT_EQ(withPlainBlanks(formatter.stringFromDate(instant)), QString::fromUtf8(c.time));
        formatter.setDateFormat(QStringLiteral("EEE"));
        EXPECT_EQ(formatter.stringFromDate(instant), QString::fromUtf8(c.weekday));
    }
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
