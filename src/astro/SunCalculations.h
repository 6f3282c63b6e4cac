#pragma once

#include <mutex>

#include <QString>
#include <QTimeZone>

#include "foundation/Instant.h"
#include "model/Location.h"

namespace zephyrix {

class DateFormatter;

/// Sunrise, sunset and twilight of a day at a place, and whether it is day there. One instance may
/// serve several threads.
///
/// Longitude is in degrees, east positive; latitude in degrees, north positive, values beyond the
/// poles being taken for the poles. An invalid zone stands for the default zone. On a day on which
/// the sun does not cross the asked height, every operation throws NamedException "NullPhenomenon"
/// with reason "sun" (it stays above: polar day) or "nosun" (it stays below: polar night).
///
///     SunCalculations sun;
///     const Instant rise = sun.sunTimesforDate(Clock::now(), 13.38, 52.53, SunCalculations::rise);
class SunCalculations {
  public:
    // The event: 0 is the rise, any other value the set.
    static constexpr int rise = 0;
    static constexpr int set = 1;

    // The height at which it is taken; any other value, such as 0 and 1, is the official one, with
    // the sun's upper limb on the horizon (50 arc minutes below).
    static constexpr int officialHorizon = 0;
    static constexpr int astronomicalTwilight = 2;  // 18 degrees below the horizon
    static constexpr int nauticalTwilight = 3;      // 12 degrees below
    static constexpr int civilTwilight = 4;         // 6 degrees below

    SunCalculations() = default;

    /// The instant of the event on the calendar day that `date` falls on in the zone, to the whole
    /// minute. Not-a-number for coordinates that are no numbers.
    [[nodiscard]] Instant sunTimesforDate(Instant date, double longitude, double latitude,
                                          int timeType, int twilight, const QTimeZone& timeZone);
    /// At the official horizon.
    [[nodiscard]] Instant sunTimesforDate(Instant date, double longitude, double latitude,
                                          int timeType, const QTimeZone& timeZone);
    /// At the official horizon, in the default zone.
    [[nodiscard]] Instant sunTimesforDate(Instant date, double longitude, double latitude,
                                          int TimeType);
    /// In the default zone.
    [[nodiscard]] Instant sunTimesforDate(Instant date, double longitude, double latitude,
                                          int TimeType, int Twilight);
    /// At the official horizon, with the place's coordinates (0 when absent) and zone.
    [[nodiscard]] Instant sunTimesforDate(Instant date, const Location& location, int timeType);

    /// Whether the instant lies between sunrise and sunset, both excluded.
    [[nodiscard]] bool isDayLightAtDate(Instant date, double longitude, double latitude,
                                        const QTimeZone& timeZone);
    /// The same in the default zone.
    [[nodiscard]] bool isDayLightAtDate(Instant date, double longitude, double latitude);

    /// The reason of the last "NullPhenomenon" of this instance; empty before the first.
    [[nodiscard]] QString nullPhenomenon() const;
    void setNullPhenomenon(const QString& nullPhenomenon);

    /// Always null: the day of the year comes from the calendar.
    [[nodiscard]] static const DateFormatter* dayOfTheYearFormatter() { return nullptr; }

  private:
    [[noreturn]] void raiseNullPhenomenon(const QString& reason);

    mutable std::mutex mutex_;  // guards what follows
    QString nullPhenomenon_;
};

}  // namespace zephyrix
