#include <gtest/gtest.h>

#include "foundation/Clock.h"
#include "foundation/GregorianCalendar.h"
#include "model/LocationResult.h"
#include "model/QKTimeRange.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

constexpr double day = 86400.0;
constexpr double noonOf2024March31 = 1711886400.0;  // UTC; clocks change in Europe on that day

Instant at(double seconds) {
    return Instant::fromSecondsSince1970(seconds);
}

QTimeZone zone(const char* name) {
    return timeZoneWithName(QString::fromLatin1(name));
}

double length(const QKTimeRange& range) {
    return range.endDtg()->secondsSince(*range.startDtg());
}

TEST(QKTimeRange, DaysBeginAtTheMidnightsOfTheZone) {
    forEachLine("calendar/day-ranges.tsv", [](const DataLine& line) {
        const ReplacedClock clock([&] { return at(line.number(1)); });
        const auto range = QKTimeRange::timeRangeFromDay(static_cast<int>(line.integer(2)),
                                                         static_cast<int>(line.integer(3)),
                                                         timeZoneWithName(line[0]));
        EXPECT_EQ(range.startDtg(), at(line.number(4)));
        EXPECT_EQ(range.endDtg(), at(line.number(5)));
    });
}

TEST(QKTimeRange, ConsecutiveDaysJoinWithoutGap) {
    const ReplacedClock clock([] { return at(noonOf2024March31); });
    for (const char* name : {"Europe/Berlin", "Australia/Lord_Howe", "Africa/Cairo",
                             "America/Havana", "Antarctica/Troll", "Asia/Kolkata"}) {
        double total = 0.0;
        for (int offset = -200; offset < 400; ++offset) {
            const auto range = QKTimeRange::timeRangeFromDay(offset, offset + 1, zone(name));
            const auto next = QKTimeRange::timeRangeFromDay(offset + 1, offset + 2, zone(name));
            ASSERT_EQ(range.endDtg(), next.startDtg()) << name << ' ' << offset;
            ASSERT_TRUE(length(range) >= 22 * 3600.0 && length(range) <= 26 * 3600.0) << name;
            total += length(range);
        }
        EXPECT_EQ(total, length(QKTimeRange::timeRangeFromDay(-200, 400, zone(name)))) << name;
    }
}

TEST(QKTimeRange, HoursCountFromNow) {
    const ReplacedClock clock([] { return at(1000.25); });
    EXPECT_EQ(length(QKTimeRange::timeRangeFromNowToOffset(0, {})), 0.0);
    EXPECT_EQ(QKTimeRange::timeRangeFromNowToOffset(-3, {}).endDtg(), at(1000.25 - 10800.0));
    EXPECT_EQ(length(QKTimeRange::timeRangeFromNowToOffset(2'000'000'000, {})), 7.2e12);
}

TEST(QKTimeRange, ZoneComesFromThePlaceOrIsTheDefault) {
    const ReplacedClock clock([] { return at(noonOf2024March31); });
    LocationResult place = LocationResult::defaultSearchResult();
    place.setTimezone(QStringLiteral("Asia/Kathmandu"));
    EXPECT_EQ(QKTimeRange::localTimeRangeFromDay(0, 1, place).startDtg(), at(1711822500.0));
    place.setTimezone(std::nullopt);
    EXPECT_EQ(QKTimeRange::localTimeRangeFromDay(0, 1, place),
              QKTimeRange::timeRangeFromDay(0, 1, zone("Europe/Berlin")));
    EXPECT_EQ(length(QKTimeRange::localTimeRangeFromDay(0, 1, place)), 23 * 3600.0);
}

TEST(QKTimeRange, OffsetRangesShowLocalMidnightsAsUtc) {
    const ReplacedClock clock([] { return at(noonOf2024March31); });
    for (const char* name : {"Europe/Berlin", "America/St_Johns", "Pacific/Kiritimati", "UTC"}) {
        const auto local = QKTimeRange::localTimeRangeUsingTimeZoneOffsetFromDay(0, 1, zone(name));
        const CalendarFields today = GregorianCalendar(zone(name)).fields(Clock::now());
        const Instant midnight =
            GregorianCalendar(QTimeZone::utc()).instant({today.year, today.month, today.day});
        EXPECT_EQ(local.startDtg(), midnight) << name;
        EXPECT_EQ(length(local), day) << name;
    }
    EXPECT_EQ(QKTimeRange::localTimeRangeUsingTimeZoneOffsetFromDay(0, 1, zone("UTC")),
              QKTimeRange::utcTimeRangeFromDay(0, 1));
}

}  // namespace
}  // namespace zephyrix
