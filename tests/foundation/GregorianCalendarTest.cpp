#include <cmath>
#include <limits>

#include <QDateTime>
#include <gtest/gtest.h>

#include "foundation/GregorianCalendar.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using testing::dataLines;

CalendarFields fieldsOf(const QString& text) {
    const auto wall = QDateTime::fromString(text, QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    return {.year = wall.date().year(),
            .month = wall.date().month(),
            .day = wall.date().day(),
            .hour = wall.time().hour(),
            .minute = wall.time().minute(),
            .second = wall.time().second()};
}

GregorianCalendar calendarOf(const QString& zone) {
    return GregorianCalendar(timeZoneWithName(zone));
}

double secondsOf(const GregorianCalendar& calendar, const CalendarFields& fields) {
    return calendar.instant(fields).secondsSince1970();
}

TEST(GregorianCalendar, ReadsAndShowsWallTimesAroundEveryChangeOfAZone) {
    for (const QStringList& row : dataLines(QStringLiteral("calendar/wall-times.tsv"))) {
        const std::string what = row.join(QLatin1Char(' ')).toStdString();
        const GregorianCalendar calendar = calendarOf(row[0]);
        const auto meant = Instant::fromSecondsSince1970(row[2].toDouble());
        EXPECT_EQ(calendar.instant(fieldsOf(row[1])), meant) << what;
        EXPECT_EQ(calendar.fields(meant), fieldsOf(row[3])) << what;
        EXPECT_EQ(calendar.secondsFromGMT(meant), row[4].toInt()) << what;
    }
}

TEST(GregorianCalendar, FieldsRollOver) {
    const GregorianCalendar utc(QTimeZone::utc());
    struct Case {
        CalendarFields fields;
        const char* same;
        const char* why;
    };
    for (const Case& c : {
             Case{{2023, 12, 31, 23, 60, 0}, "2024-01-01 00:00:00", "minute 60 at the year's end"},
             Case{{2024, 2, 28, 24, 0, 0}, "2024-02-29 00:00:00", "hour 24 before a leap day"},
             Case{{2100, 2, 29, 0, 0, 0}, "2100-03-01 00:00:00", "no leap year"},
             Case{{2024, 1, 32, 0, 0, 0}, "2024-02-01 00:00:00", "day 32"},
             Case{{2024, 3, 0, 0, 0, 0}, "2024-02-29 00:00:00", "day 0"},
             Case{{2024, 13, 1, 0, 0, 0}, "2025-01-01 00:00:00", "month 13"},
             Case{{2024, -11, 400, 0, 0, -1}, "2024-02-03 23:59:59", "all at once"},
         })
        EXPECT_EQ(utc.instant(c.fields), utc.instant(fieldsOf(QString::fromLatin1(c.same))))
            << c.why;
}

// Against a count of days by hand: every day of 2000 years, the year before 1 included.
TEST(GregorianCalendar, CountsDaysWithoutGap) {
    const GregorianCalendar utc(QTimeZone::utc());
    double expected = secondsOf(utc, {.year = -1});
    for (std::int64_t year = -1; year < 2000; ++year) {
        const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
        ASSERT_EQ(secondsOf(utc, {.year = year}), expected) << year;
        const auto lastDay =
            Instant::fromSecondsSince1970(expected + (leap ? 365 : 364) * 86400.0 + 86399.5);
        ASSERT_EQ(utc.dayOfYear(lastDay), leap ? 366 : 365) << year;
        ASSERT_EQ(utc.fields(lastDay), (CalendarFields{year, 12, 31, 23, 59, 59})) << year;
        expected += (leap ? 366 : 365) * 86400.0;
    }
    EXPECT_EQ(secondsOf(utc, {.year = 1970}), 0.0);
}

TEST(GregorianCalendar, InstantsBeyondMeaningAreReadAsTheBorder) {
    const GregorianCalendar berlin = calendarOf(QStringLiteral("Europe/Berlin"));
    const auto read = [&](double seconds) {
        return berlin.fields(Instant::fromSecondsSince1970(seconds));
    };
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(read(infinity), read(1e300));
    EXPECT_EQ(read(-infinity), read(-1e300));
    EXPECT_EQ(read(std::nan("")), read(-1e300));
    EXPECT_GT(read(infinity).year, 200'000'000);
    constexpr std::int64_t most = std::numeric_limits<int>::max();
    EXPECT_TRUE(std::isfinite(secondsOf(berlin, {most, most, most, most, most, most})));
    EXPECT_TRUE(std::isfinite(secondsOf(berlin, {-most, -most, -most, -most, -most, -most})));
}

TEST(TimeZone, OnlyNamesOfTheZoneDataAreZones) {
    for (const char* name : {"Europe/Berlin", "UTC", "CET", "Etc/GMT+5", "America/Indiana/Knox"})
        EXPECT_TRUE(timeZoneWithName(QString::fromLatin1(name)).isValid()) << name;
    for (const char* name :
         {"", " ", "Europe", "europe/berlin", "Europe/Berlin ", "ABC3", "Mars/Base",
          "../zoneinfo/Europe/Paris", "/etc/localtime", "tzdata.zi"})
        EXPECT_FALSE(timeZoneWithName(QString::fromLatin1(name)).isValid()) << name;
    EXPECT_EQ(GregorianCalendar(QTimeZone()).timeZone().id(), "Europe/Berlin");
}

TEST(TimeZone, DefaultIsThatOfTheEnvironmentAtTheCall) {
    qputenv("TZ", "Asia/Kathmandu");
    EXPECT_EQ(defaultTimeZone().id(), "Asia/Kathmandu");
    qputenv("TZ", "No/Such");
    EXPECT_EQ(defaultTimeZone(), QTimeZone::utc());
    qputenv("TZ", "Europe/Berlin");
}

}  // namespace
}  // namespace zephyrix
