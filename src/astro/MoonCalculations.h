#pragma once

#include "foundation/Instant.h"

namespace zephyrix {

/// The moon's phase. Any thread.
///
///     const double phase = MoonCalculations::currentMoonForDate(Clock::now());
///     const int image = MoonCalculations::imageNumberForPhase(phase);
class MoonCalculations {
  public:
    /// The signed phase in percent, above -100 to 100: 0 new moon, 50 first quarter, 100 full
    /// moon, -50 last quarter; positive while the moon waxes.
    [[nodiscard]] static double currentMoonForDate(Instant date);
    /// Which of the eight moon images shows a phase: 1 new moon, 2 waxing crescent, 3 first
    /// quarter, 4 waxing gibbous, 5 full moon, 6 waning gibbous, 7 last quarter, 8 waning crescent.
    [[nodiscard]] static int imageNumberForPhase(double phase);

    /// The Julian day, from the seconds since 1970.
    [[nodiscard]] static double gen_julian(Instant date);
    /// The approximate number of lunations since 2000, counting what the calendar shows in the
    /// default zone, moved by `timezone` hours.
    [[nodiscard]] static double var_k(Instant date, double timezone);
};

}  // namespace zephyrix
