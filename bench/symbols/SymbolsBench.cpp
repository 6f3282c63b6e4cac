// What symbols cost beside the least that each operation could cost. "of_floor" is the ratio of the
// best rounds of both, measured by turns in the same run; "floor_ns" is the floor.
#include <algorithm>
#include <array>
#include <chrono>
#include <cstring>
#include <limits>
#include <vector>

#include <QBuffer>
#include <QDir>
#include <QImageReader>
#include <QPainter>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include "foundation/Bundle.h"
#include "symbols/QKCompoundSymbol.h"
#include "symbols/QKWeatherSymbols.h"
#include "symbols/SymbolDrawing.h"

namespace {

using namespace zephyrix;

constexpr int side = 120;        // pixels: a symbol of 40 points at scale 3
constexpr int callsARound = 20;  // so that reading the clock does not count
const QSizeF symbolSize(side, side);

template <typename Operation>
double nanosecondsACall(const Operation& operation) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < callsARound; ++i)
        operation();
    const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
    return taken.count() / callsARound;
}

template <typename Operation, typename Floor>
void compare(benchmark::State& state, const Operation& operation, const Floor& floor) {
    double bestOperation = std::numeric_limits<double>::max();
    double bestFloor = std::numeric_limits<double>::max();
    for (auto _ : state) {
        const double taken = nanosecondsACall(operation);
        state.SetIterationTime(taken * 1e-9);
        bestOperation = std::min(bestOperation, taken);
        bestFloor = std::min(bestFloor, nanosecondsACall(floor));
    }
    state.counters["best_ns"] = bestOperation;
    state.counters["floor_ns"] = bestFloor;
    state.counters["of_floor"] = bestOperation / bestFloor;
}

/// A soft disc: opaque inside, clear outside, as most layers are.
QImage layer(const QColor& colour) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(colour);
    painter.drawEllipse(QPointF(side / 2.0, side / 2.0), side * 0.3, side * 0.3);
    return image;
}

/// A symbol set of its own, and empty caches.
class OwnSet {
  public:
    OwnSet() {
        qputenv("XDG_CACHE_HOME", folder_.filePath(QStringLiteral("cache")).toUtf8());
        const QString set = folder_.filePath(QStringLiteral("symbols_0.bundle"));
        QDir().mkpath(set);
        for (const auto* name : {"sun", "cloud1", "prec2110", "warn1"})
            layer(Qt::red).save(set + QLatin1Char('/') + QLatin1String(name) + ".png");
        Bundle::main().setDataDirectory(folder_.path());
        QKWeatherSymbols::startAfresh();
    }

  private:
    QTemporaryDir folder_;
};

void composeFourReadyLayers(benchmark::State& state) {
    std::array<PlacedLayer, 4> layers;
    std::vector<uchar> copy(std::size_t(4 * side * side * 4));
    for (int i = 0; i < 4; ++i)
        layers.at(std::size_t(i)) = {layer(QColor(60 * i, 200, 100)), QPoint(3 * i - 4, 2 * i)};
    compare(
        state,
        [&] { benchmark::DoNotOptimize(composedLayers(QSize(side, side), layers).constBits()); },
        [&] {
            uchar* to = copy.data();
            for (const PlacedLayer& each : layers) {
                std::memcpy(to, each.image.constBits(), std::size_t(each.image.sizeInBytes()));
                to += each.image.sizeInBytes();
            }
            benchmark::DoNotOptimize(copy.data());
            benchmark::ClobberMemory();
        });
}

void wholeSymbolUncached(benchmark::State& state) {
    const OwnSet set;
    QKCompoundSymbol symbols;
    const Number code(1121101);
    std::vector<uchar> copy(std::size_t(4 * side * side * 4));
    const std::vector<uchar> from(copy.size());
    compare(
        state,
        [&] { benchmark::DoNotOptimize(symbols.symbolForCode(code, symbolSize).constBits()); },
        [&] {
            std::memcpy(copy.data(), from.data(), copy.size());
            benchmark::DoNotOptimize(copy.data());
            benchmark::ClobberMemory();
        });
}

/// The floor is looking up a ready key in a map.
void memoryCacheHit(benchmark::State& state, int code, std::optional<Instant> date) {
    const OwnSet set;
    QKCompoundSymbol symbols;
    symbols.setUseCache(true);
    const Number number(code);
    (void)symbols.symbolForCode(number, symbolSize, date);
    const auto& cache = QKWeatherSymbols::symbolCache();
    const QString key = cache.keys().constFirst();
    compare(
        state,
        [&] { benchmark::DoNotOptimize(symbols.symbolForCode(number, symbolSize, date).isNull()); },
        [&] { benchmark::DoNotOptimize(cache.value(key).isNull()); });
    QKWeatherSymbols::waitForFiles();
}

/// The floor is decoding the same file's bytes in memory.
void diskHit(benchmark::State& state) {
    const OwnSet set;
    const QString key = QStringLiteral("bench.png");
    QKWeatherSymbols::addObjectToCache(
        QKCompoundSymbol().symbolForCode(Number(1121101), symbolSize), key);
    QKWeatherSymbols::waitForFiles();
    QFile file(QKWeatherSymbols::documentsDir() + QLatin1Char('/') + key);
    if (!file.open(QIODevice::ReadOnly))
        return state.SkipWithError("no file");
    const QByteArray bytes = file.readAll();
    compare(
        state,
        [&] {
            QKWeatherSymbols::symbolCache().clear();
            benchmark::DoNotOptimize(QKWeatherSymbols::imageFromCacheForKey(key).constBits());
        },
        [&] { benchmark::DoNotOptimize(QImage::fromData(bytes, "png").constBits()); });
}

const Instant someNight = Instant::fromSecondsSince1970(1433203200);

BENCHMARK(composeFourReadyLayers)->UseManualTime();
BENCHMARK(wholeSymbolUncached)->UseManualTime();
BENCHMARK_CAPTURE(memoryCacheHit, sun, 1121101, std::nullopt)->UseManualTime();
BENCHMARK_CAPTURE(memoryCacheHit, datedMoon, 2121101, someNight)->UseManualTime();
BENCHMARK(diskHit)->UseManualTime();

}  // namespace

BENCHMARK_MAIN();
