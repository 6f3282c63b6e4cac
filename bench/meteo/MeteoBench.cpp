// What a display text costs beside the least that it could cost: ICU's number format, made before,
// writing the same number without a unit. "of_floor" is the ratio of the best rounds of both,
// measured by turns in the same run; "floor_ns" is the floor.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <vector>

#include <benchmark/benchmark.h>
#include <unicode/dcfmtsym.h>
#include <unicode/decimfmt.h>

#include "meteo/MeteoMapping.h"

namespace {

using namespace zephyrix;

constexpr std::size_t kCount = 64;  // values a round, so that reading the clock does not count

using Values = std::vector<Number>;

/// Boxed numbers with one decimal, as an observation holds them.
Values valuesFrom(double least, double step) {
    Values values;
    for (std::size_t i = 0; i < kCount; ++i)
        values.emplace_back(std::round((least + step * static_cast<double>(i)) * 10.0) / 10.0);
    return values;
}

icu::DecimalFormat bareFormat(int leastFraction, int mostFraction) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::DecimalFormatSymbols symbols(icu::Locale("en_US"), status);
    icu::DecimalFormat format(u"0", symbols, status);
    if (U_FAILURE(status) != 0)
        std::abort();
    format.setMinimumFractionDigits(leastFraction);
    format.setMaximumFractionDigits(mostFraction);
    format.setRoundingMode(icu::DecimalFormat::kRoundHalfEven);
    return format;
}

template <typename Operation>
double nanosecondsACall(const Values& values, const Operation& operation) {
    const auto start = std::chrono::steady_clock::now();
    for (const Number& value : values)
        operation(value);
    const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
    return taken.count() / kCount;
}

template <typename Operation>
void compareWithBareFormat(benchmark::State& state, const Values& values,
                           const icu::DecimalFormat& format, const Operation& operation) {
    double best = std::numeric_limits<double>::infinity();
    double bestFloor = best;
    icu::UnicodeString text;
    for (auto _ : state) {
        bestFloor = std::min(bestFloor, nanosecondsACall(values, [&](const Number& value) {
                                 text.remove();
                                 benchmark::DoNotOptimize(format.format(value.doubleValue(), text));
                             }));
        best = std::min(best, nanosecondsACall(values, [&](const Number& value) {
                            benchmark::DoNotOptimize(operation(value));
                        }));
    }
    state.counters["of_floor"] = best / bestFloor;
    state.counters["floor_ns"] = bestFloor;
}

void temperature(benchmark::State& state) {
    compareWithBareFormat(
        state, valuesFrom(-25.0, 0.9), bareFormat(0, 0),
        [](const Number& celsius) { return MeteoMapping::formattedTempString(celsius, 0); });
}
BENCHMARK(temperature);

void pressure(benchmark::State& state) {
    compareWithBareFormat(state, valuesFrom(960.0, 1.3), bareFormat(0, 1), [](const Number& hPa) {
        return MeteoMapping::formattedPressureString(hPa, 0);
    });
}
BENCHMARK(pressure);

void precipitation(benchmark::State& state) {
    compareWithBareFormat(state, valuesFrom(0.0, 0.3), bareFormat(1, 1), [](const Number& mm) {
        return MeteoMapping::formattedPrecipitationString(mm, 0);
    });
}
BENCHMARK(precipitation);

void wind(benchmark::State& state) {
    compareWithBareFormat(state, valuesFrom(0.0, 0.9), bareFormat(0, 0), [](const Number& knots) {
        return MeteoMapping::formattedWindString(knots, 2);
    });
}
BENCHMARK(wind);

}  // namespace

BENCHMARK_MAIN();
