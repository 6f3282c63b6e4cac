#include "SkyOfDay.h"

#include "astro/MoonCalculations.h"
#include "astro/SunCalculations.h"
#include "foundation/NamedException.h"

namespace zephyrix {

namespace {

constexpr double secondsPerDay = 86400.0;

// By image number, from 1.
constexpr std::array<const char*, 8> moonNames{
    "new moon",  "waxing crescent", "first quarter", "waxing gibbous",
    "full moon", "waning gibbous",  "last quarter",  "waning crescent"};

SunPassage passage(Instant date, const SkyPlace& place, int twilight) {
    SunPassage result;
    SunCalculations sun;
    const auto time = [&](int event) -> std::optional<Instant> {
        try {
            return sun.sunTimesforDate(date, place.coordinate.longitude, place.coordinate.latitude,
                                       event, twilight, place.zone);
        } catch (const NamedException& exception) {
            result.staysAbove = exception.reason() == QLatin1String("sun");
            return std::nullopt;
        }
    };
    result.rise = time(SunCalculations::rise);
    result.set = time(SunCalculations::set);
    return result;
}

}  // namespace

double SunPassage::length() const {
    if (!rise || !set)
        return staysAbove ? secondsPerDay : 0.0;
    const double seconds = set->secondsSince(*rise);
    return seconds < 0.0 ? seconds + secondsPerDay : seconds;
}

SkyOfDay skyOfDay(Instant date, const SkyPlace& place) {
    const double phase = MoonCalculations::currentMoonForDate(date);
    const int image = MoonCalculations::imageNumberForPhase(phase);
    return {.sun = passage(date, place, SunCalculations::officialHorizon),
            .civil = passage(date, place, SunCalculations::civilTwilight),
            .nautical = passage(date, place, SunCalculations::nauticalTwilight),
            .astronomical = passage(date, place, SunCalculations::astronomicalTwilight),
            .moonPhase = phase,
            .moonImage = image,
            .moonName = QString::fromLatin1(moonNames.at(static_cast<std::size_t>(image) - 1))};
}

}  // namespace zephyrix
