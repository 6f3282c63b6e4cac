// What a sun time, a daylight test, a moon phase and a day's range cost: in nanoseconds, and in
// calls of sin() of the same run ("sins"), which holds on any machine.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>

#include <benchmark/benchmark.h>

#include "astro/MoonCalculations.h"
#include "astro/SunCalculations.h"
#include "foundation/TimeZone.h"
#include "model/QKTimeRange.h"

namespace zephyrix {
namespace {

constexpr double longitude = 13.38;
constexpr double latitude = 52.53;

/// Seconds of one sin() in a bare loop, the best of several.
double secondsPerSin() {
    static const double seconds = [] {
        constexpr int calls = 200'000;
        double best = std::numeric_limits<double>::infinity();
        for (int attempt = 0; attempt < 20; ++attempt) {
            const auto start = std::chrono::steady_clock::now();
            for (int call = 0; call < calls; ++call)
                benchmark::DoNotOptimize(std::sin(call * 1e-3));
            const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
            best = std::min(best, spent.count() / calls);
        }
        return best;
    }();
    return seconds;
}

void countInSins(benchmark::State& state) {
    state.counters["sins"] =
        benchmark::Counter(secondsPerSin(), benchmark::Counter::kIsIterationInvariantRate |
                                                benchmark::Counter::kInvert);
}

/// Another day at each call, through three years.
Instant nextDate() {
    static int number = 0;
    number = (number + 1) % 1000;
    return Instant::fromSecondsSince1970(1.7e9 + number * 86'413.0);
}

void sin(benchmark::State& state) {
    double angle = 0.0;
    for (auto _ : state)
        benchmark::DoNotOptimize(std::sin(angle += 1e-3));
    countInSins(state);
}
BENCHMARK(sin);

void sunTime(benchmark::State& state) {
    const QTimeZone zone = timeZoneWithName(QStringLiteral("Europe/Berlin"));
    SunCalculations sun;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            sun.sunTimesforDate(nextDate(), longitude, latitude, SunCalculations::rise, zone));
    countInSins(state);
}
BENCHMARK(sunTime);

void daylightTest(benchmark::State& state) {
    const QTimeZone zone = timeZoneWithName(QStringLiteral("Europe/Berlin"));
    SunCalculations sun;
    for (auto _ : state)
        benchmark::DoNotOptimize(sun.isDayLightAtDate(nextDate(), longitude, latitude, zone));
    countInSins(state);
}
BENCHMARK(daylightTest);

void moonPhase(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(MoonCalculations::currentMoonForDate(nextDate()));
    countInSins(state);
}
BENCHMARK(moonPhase);

void dayRange(benchmark::State& state) {
    const QTimeZone zone = timeZoneWithName(QStringLiteral("Europe/Berlin"));
    for (auto _ : state)
        benchmark::DoNotOptimize(QKTimeRange::timeRangeFromDay(0, 1, zone));
    countInSins(state);
}
BENCHMARK(dayRange);

}  // namespace
}  // namespace zephyrix
