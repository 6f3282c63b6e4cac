#include <algorithm>
#include <cmath>
#include <iostream>

#include <QHash>
#include <gtest/gtest.h>

#include "astro/AstroCalculations.h"
#include "astro/MoonCalculations.h"
#include "foundation/GregorianCalendar.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

constexpr double percentPerHour = 100.0 / (29.530589 / 2 * 24);  // of the mean moon
constexpr double hour = 3600.0;

Instant instantOf(const QString& seconds) {
    return Instant::fromSecondsSince1970(seconds.toDouble());
}

/// By how many hours of the mean moon's motion two phase values lie apart, the short way round.
double hoursApart(double phase, double other) {
    const double percent = std::remainder(phase - other, 200.0);
    return std::abs(percent) / percentPerHour;
}

TEST(MoonPhase, AgreesWithPublishedPhases) {
    const QHash<QString, double> values{{QStringLiteral("new"), 0.0},
                                        {QStringLiteral("first"), 50.0},
                                        {QStringLiteral("full"), 100.0},
                                        {QStringLiteral("last"), -50.0}};
    const auto rows = dataLines(QStringLiteral("astro/moon-phases.tsv"));
    double worst = 0.0;
    for (const QStringList& row : rows) {
        ASSERT_TRUE(values.contains(row[2]));
        const double phase = MoonCalculations::currentMoonForDate(instantOf(row[0]));
        const double error = hoursApart(phase, values.value(row[2]));
        worst = std::max(worst, error);
        EXPECT_LT(error, 2.0) << row.join(QLatin1Char(' ')).toStdString() << ": " << phase;
    }
    std::cout << rows.size() << " phases, worst error " << worst * 60 << " minutes\n";
}

// The sign turns at the moment of full moon, and nowhere else does the value jump.
TEST(MoonPhase, MovesSmoothlyOutsideTheTurnAtFullMoon) {
    constexpr double start = 1704067200.0;  // 2024-01-01
    double last = MoonCalculations::currentMoonForDate(Instant::fromSecondsSince1970(start));
    int turns = 0;
    for (int step = 1; step < 366 * 24; ++step) {
        const auto instant = Instant::fromSecondsSince1970(start + step * hour);
        const double phase = MoonCalculations::currentMoonForDate(instant);
        const bool turn = last > 99.0 && phase < -99.0;
        turns += turn ? 1 : 0;
        EXPECT_TRUE(turn || (phase > last && phase < last + 1.0)) << last << " to " << phase;
        last = phase;
    }
    EXPECT_EQ(turns, 12);  // full moons of 2024
}

TEST(MoonPhase, ImageFollowsThePhaseWithItsLimits) {
    forEachLine("astro/moon-images.tsv", [](const DataLine& line) {
        EXPECT_EQ(MoonCalculations::imageNumberForPhase(line.number(0)), line.integer(1));
    });
}

TEST(MoonPhase, LunationNumberCountsFromTheYear2000) {
    // New moons of January 2000 and of January 2019, 235 lunations later. The formula is known to
    // about half a lunation.
    const auto first = instantOf(QStringLiteral("947182440"));    // 2000-01-06 18:14 UT
    const auto second = instantOf(QStringLiteral("1546738080"));  // 2019-01-06 01:28 UT
    EXPECT_NEAR(MoonCalculations::var_k(first, 0.0), 0.0, 0.5);
    EXPECT_NEAR(MoonCalculations::var_k(second, 0.0), 235.0, 0.5);
    // A day of offset is a day of the calendar.
    EXPECT_NEAR(MoonCalculations::var_k(first, 24.0),
                MoonCalculations::var_k(first.addingSeconds(24 * hour), 0.0), 1e-9);
    EXPECT_EQ(MoonCalculations::gen_julian(first), AstroCalculations::fastJulian(first));
}

}  // namespace
}  // namespace zephyrix
