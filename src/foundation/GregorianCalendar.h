#pragma once

#include <cstdint>

#include <QTimeZone>

#include "Instant.h"
#include "TimeZone.h"

namespace zephyrix {

/// A date and a time of day on the wall. Each field within the range of int.
struct CalendarFields {
    std::int64_t year = 1970;  // 0 is the year before 1
    std::int64_t month = 1;    // 1 to 12
    std::int64_t day = 1;      // 1 to 31
    std::int64_t hour = 0;     // 0 to 23
    std::int64_t minute = 0;   // 0 to 59
    std::int64_t second = 0;   // 0 to 59

    friend bool operator==(const CalendarFields&, const CalendarFields&) = default;
};

/// The Gregorian calendar of one zone, extended to all years. Its zone never changes, so one
/// calendar serves any number of threads without a lock.
///
///     const GregorianCalendar calendar(timeZoneWithName("Europe/Berlin"));
///     CalendarFields fields = calendar.fields(Clock::now());
///     fields.hour = 24;                                        // rolls into the next day
///     const Instant nextHour = calendar.instant(fields);
class GregorianCalendar {
  public:
    /// An invalid zone stands for the default zone of this moment.
    explicit GregorianCalendar(const QTimeZone& zone);

    [[nodiscard]] const QTimeZone& timeZone() const noexcept { return zone_; }

    /// What the wall shows at an instant; fractions of a second are dropped downwards. Instants
    /// beyond 285 million years, infinite ones and not-a-number are read as the border.
    [[nodiscard]] CalendarFields fields(Instant instant) const;
    /// The day of the year at an instant, 1 to 366.
    [[nodiscard]] int dayOfYear(Instant instant) const;
    /// The instant at which the wall shows these fields. A field beyond its limits rolls over into
    /// the next greater one: month 13, day 0, hour 24, minute 60. A time that the zone skips moves
    /// forward by what was skipped; a time that it shows twice is the first of the two. Years
    /// beyond 100 million are read as the border.
    [[nodiscard]] Instant instant(const CalendarFields& fields) const;
    /// Seconds by which the zone is ahead of GMT at an instant; negative west of it.
    [[nodiscard]] int secondsFromGMT(Instant instant) const;

  private:
    [[nodiscard]] std::int64_t offsetAt(std::int64_t secondsSince1970) const;

    QTimeZone zone_;
};

}  // namespace zephyrix
