#include "QKTimeRange.h"

#include <cstdint>

#include "foundation/Clock.h"
#include "foundation/GregorianCalendar.h"

namespace zephyrix {

namespace {

constexpr std::int64_t secondsPerHour = 3600;

QString textOf(const std::optional<Instant>& instant) {
    return instant ? instant->description() : QStringLiteral("(null)");
}

Instant movedByOffset(const GregorianCalendar& calendar, Instant instant) {
    return instant.addingSeconds(calendar.secondsFromGMT(instant));
}

}  // namespace

QKTimeRange QKTimeRange::timeRangeFromNowToOffset(int hours, const QTimeZone& /*timeZone*/) {
    const Instant now = Clock::now();
    return {now, now.addingSeconds(static_cast<double>(hours * secondsPerHour))};
}

QKTimeRange QKTimeRange::timeRangeFromDay(int from, int toDay, const QTimeZone& timeZone) {
    const GregorianCalendar calendar(timeZone);
    const CalendarFields today = calendar.fields(Clock::now());
    const auto midnight = [&](int offset) {
        return calendar.instant(
            {.year = today.year, .month = today.month, .day = today.day + offset});
    };
    return {midnight(from), midnight(toDay)};
}

QKTimeRange QKTimeRange::localTimeRangeFromDay(int from, int toDay, const Location& location) {
    return timeRangeFromDay(from, toDay, timeZoneWithName(location.timezone().value_or(QString())));
}

QKTimeRange QKTimeRange::utcTimeRangeFromDay(int from, int toDay) {
    return timeRangeFromDay(from, toDay, QTimeZone::utc());
}

QKTimeRange QKTimeRange::localTimeRangeUsingTimeZoneOffsetFromDay(int from, int toDay,
                                                                  const QTimeZone& timeZone) {
    const GregorianCalendar calendar(timeZone);
    const QKTimeRange range = timeRangeFromDay(from, toDay, calendar.timeZone());
    return {movedByOffset(calendar, *range.startDtg_), movedByOffset(calendar, *range.endDtg_)};
}

QString QKTimeRange::description() const {
    return QStringLiteral("%1 - %2").arg(textOf(startDtg_), textOf(endDtg_));
}

}  // namespace zephyrix
