#include <cmath>
#include <limits>
#include <sstream>

#include <QDateTime>
#include <gtest/gtest.h>

#include "foundation/GregorianCalendar.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

CalendarFields fieldsOf(const QString& text) {
    const auto wall = QDateTime::fromString(text, QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    return {.year = wall.date().year(),
            .month = wall.date().month(),
            .day = wall.date().day(),
            .hour = wall.time().hour(),
            .minute = wall.time().minute(),
            .second = wall.time().second()};
}

double secondsOf(const GregorianCalendar& calendar, const CalendarFields& fields) {
    return calendar.instant(fields).secondsSince1970();
}

TEST(GregorianCalendar, ReadsAndShowsWallTimesAroundEveryChangeOfAZone) {
    forEachLine("calendar/wall-times.tsv", [](const DataLine& line) {
        const GregorianCalendar calendar(timeZoneWithName(line[0]));
        const auto meant = Instant::fromSecondsSince1970(line.number(2));
        EXPECT_EQ(calendar.instant(fieldsOf(line[1])), meant);
        EXPECT_EQ(calendar.fields(meant), fieldsOf(line[3]));
        EXPECT_EQ(calendar.secondsFromGMT(meant), line.integer(4));
    });
}

TEST(GregorianCalendar, FieldsRollOver) {
    const GregorianCalendar utc(QTimeZone::utc());
    forEachLine("calendar/rolled-fields.tsv", [&](const DataLine& line) {
        std::istringstream text(line[0].toStdString());
        CalendarFields f;
        ASSERT_TRUE(text >> f.year >> f.month >> f.day >> f.hour >> f.minute >> f.second);
        EXPECT_EQ(utc.instant(f), utc.instant(fieldsOf(line[1])));
    });
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
    const GregorianCalendar berlin(timeZoneWithName(QStringLiteral("Europe/Berlin")));
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
