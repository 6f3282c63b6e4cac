#include "GregorianCalendar.h"

#include <algorithm>
#include <cmath>

#include <QDate>
#include <QDateTime>

namespace zephyrix {

namespace {

constexpr std::int64_t secondsPerDay = 86400;
constexpr std::int64_t julianDayOf1970 = 2440588;           // 1970-01-01, the whole civil day
constexpr std::int64_t lastSecond = 9'000'000'000'000'000;  // milliseconds still fit 64 bits
constexpr std::int64_t lastYear = 100'000'000;

std::int64_t floorDivide(std::int64_t a, std::int64_t b) {
    return a / b - (a % b < 0 ? 1 : 0);
}

std::int64_t wholeSeconds(Instant instant) {
    constexpr auto limit = static_cast<double>(lastSecond);
    const double seconds = std::floor(instant.secondsSince1970());
    if (!(seconds > -limit))  // not-a-number too
        return -lastSecond;
    return static_cast<std::int64_t>(std::min(seconds, limit));
}

// QDate counts ..., -2, -1, 1, 2, ...: it knows no year 0.
int yearOfQDate(std::int64_t year) {
    return static_cast<int>(year > 0 ? year : year - 1);
}

std::int64_t yearFromQDate(int year) {
    return year > 0 ? year : year + 1;
}

QDate dateOfWallSeconds(std::int64_t wallSeconds) {
    return QDate::fromJulianDay(floorDivide(wallSeconds, secondsPerDay) + julianDayOf1970);
}

/// Days from 1970-01-01 to the first of a month, which may lie beyond 1 to 12.
std::int64_t daysToFirstOfMonth(std::int64_t year, std::int64_t month) {
    const std::int64_t years = floorDivide(month - 1, 12);
    const std::int64_t rolledYear = std::clamp(year + years, -lastYear, lastYear);
    const auto rolledMonth = static_cast<int>(month - years * 12);
    return QDate(yearOfQDate(rolledYear), rolledMonth, 1).toJulianDay() - julianDayOf1970;
}

std::int64_t wallSecondsOf(const CalendarFields& fields) {
    const std::int64_t days = daysToFirstOfMonth(fields.year, fields.month) + fields.day - 1;
    return days * secondsPerDay + fields.hour * 3600 + fields.minute * 60 + fields.second;
}

}  // namespace

GregorianCalendar::GregorianCalendar(const QTimeZone& zone)
    : zone_(zone.isValid() ? zone : defaultTimeZone()) {}

CalendarFields GregorianCalendar::fields(Instant instant) const {
    const std::int64_t seconds = wholeSeconds(instant);
    const std::int64_t wall = seconds + offsetAt(seconds);
    const QDate date = dateOfWallSeconds(wall);
    const std::int64_t secondOfDay = wall - floorDivide(wall, secondsPerDay) * secondsPerDay;
    return {.year = yearFromQDate(date.year()),
            .month = date.month(),
            .day = date.day(),
            .hour = secondOfDay / 3600,
            .minute = secondOfDay / 60 % 60,
            .second = secondOfDay % 60};
}

int GregorianCalendar::dayOfYear(Instant instant) const {
    const std::int64_t seconds = wholeSeconds(instant);
    return dateOfWallSeconds(seconds + offsetAt(seconds)).dayOfYear();
}

Instant GregorianCalendar::instant(const CalendarFields& fields) const {
    const std::int64_t wall = wallSecondsOf(fields);
    // A day to either side lies beyond any offset, so between them lies the change, if there is
    // one.
    const std::int64_t offsetBefore = offsetAt(wall - secondsPerDay);
    const std::int64_t byOffsetBefore = wall - offsetBefore;
    if (offsetAt(byOffsetBefore) != offsetBefore) {
        const std::int64_t offsetAfter = offsetAt(wall + secondsPerDay);
        const std::int64_t byOffsetAfter = wall - offsetAfter;
        if (offsetAt(byOffsetAfter) == offsetAfter)
            return Instant::fromSecondsSince1970(static_cast<double>(byOffsetAfter));
    }
    return Instant::fromSecondsSince1970(static_cast<double>(byOffsetBefore));
}

int GregorianCalendar::secondsFromGMT(Instant instant) const {
    return static_cast<int>(offsetAt(wholeSeconds(instant)));
}

std::int64_t GregorianCalendar::offsetAt(std::int64_t secondsSince1970) const {
    const std::int64_t seconds = std::clamp(secondsSince1970, -lastSecond, lastSecond);
    return zone_.offsetFromUtc(QDateTime::fromMSecsSinceEpoch(seconds * 1000, Qt::UTC));
}

}  // namespace zephyrix
