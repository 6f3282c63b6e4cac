#include "MoonCalculations.h"

#include <array>
#include <cmath>

#include "AstroCalculations.h"
#include "foundation/GregorianCalendar.h"

namespace zephyrix {

namespace {

constexpr double halfCircle = 180.0;  // degrees
constexpr double lunationsPerYear = 12.3685;
constexpr double meanDaysPerMonth = 30.4;
constexpr double daysPerYear = 365.0;

struct PhaseImage {
    double below;  // percent, without sign
    int waxing;
    int waning;
};
constexpr std::array phaseImages{
    PhaseImage{3.0, 1, 1},
    PhaseImage{37.5, 2, 8},
    PhaseImage{62.5, 3, 7},
    PhaseImage{97.0, 4, 6},
};
constexpr int fullMoonImage = 5;

}  // namespace

double MoonCalculations::currentMoonForDate(Instant date) {
    const double age = AstroCalculations::moonPositionWithDate(date, Coordinate{}).moonAge;
    const double halfCircles = age / halfCircle;
    return (halfCircles > 1.0 ? halfCircles - 2.0 : halfCircles) * 100.0;
}

int MoonCalculations::imageNumberForPhase(double phase) {
    for (const PhaseImage& image : phaseImages) {
        if (std::abs(phase) < image.below)
            return phase < 0.0 ? image.waning : image.waxing;
    }
    return fullMoonImage;
}

double MoonCalculations::gen_julian(Instant date) {
    return AstroCalculations::fastJulian(date);
}

double MoonCalculations::var_k(Instant date, double timezone) {
    const CalendarFields fields = GregorianCalendar(defaultTimeZone()).fields(date);
    const auto year = static_cast<double>(fields.year);
    const auto month = static_cast<double>(fields.month);
    const auto day = static_cast<double>(fields.day);
    const double timeOfDay =
        static_cast<double>(fields.hour) / 24.0 + static_cast<double>(fields.minute) / 1440.0;
    const double days = (month - 1.0) * meanDaysPerMonth + (day + timezone / 24.0) + timeOfDay;
    return (year + days / daysPerYear - 2000.0) * lunationsPerYear;
}

}  // namespace zephyrix
