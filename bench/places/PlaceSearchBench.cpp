// A search as one types it, beside the least that any search in that file costs: one row by its
// key, and one row by the full-text index. "cold" opens the file anew, with none of it in the
// system's cache.
#include <array>
#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <benchmark/benchmark.h>

#include "foundation/Bundle.h"
#include "places/PlaceList.h"
#include "places/SqliteFile.h"

namespace {

using zephyrix::PlaceList;

constexpr std::size_t most = 10;

// One letter, an exact name, a beginning in another script, two words, a country, nothing.
constexpr std::array typed{"s", "tromso", "санкт", "new yo", "norway", "paris texas", "xqzzy"};

QString file() {
    return zephyrix::Bundle::main().pathForResource(QStringLiteral("places.sqlite"));
}

void bareRowByKey(benchmark::State& state) {
    const zephyrix::SqliteFile list(file());
    auto row = list.statement("SELECT name FROM place WHERE id = ?");
    for ([[maybe_unused]] const auto iteration : state) {
        row.bind(1, std::int64_t{3133895});
        benchmark::DoNotOptimize(row.step());
        row.reset();
    }
}
BENCHMARK(bareRowByKey);

void bareRowOfTheIndex(benchmark::State& state) {
    const zephyrix::SqliteFile list(file());
    auto row = list.statement("SELECT rowid FROM word WHERE word MATCH ? ORDER BY rowid");
    for ([[maybe_unused]] const auto iteration : state) {
        row.bind(1, QByteArray("tromso"));
        benchmark::DoNotOptimize(row.step());
        row.reset();
    }
}
BENCHMARK(bareRowOfTheIndex);

void search(benchmark::State& state) {
    const QString text = QString::fromUtf8(typed.at(static_cast<std::size_t>(state.range(0))));
    PlaceList list(QStringLiteral("ru"));
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(list.search(text, most));
    state.SetLabel(text.toStdString());
}
BENCHMARK(search)->DenseRange(0, typed.size() - 1);

/// Lets the system forget what it keeps of a file.
void forget(const QString& path) {
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    ::posix_fadvise(descriptor, 0, 0, POSIX_FADV_DONTNEED);
    ::close(descriptor);
}

void coldRowByKey(benchmark::State& state) {
    for ([[maybe_unused]] const auto iteration : state) {
        state.PauseTiming();
        forget(file());
        state.ResumeTiming();
        const zephyrix::SqliteFile list(file());
        auto row = list.statement("SELECT name FROM place WHERE id = 3133895");
        benchmark::DoNotOptimize(row.step());
    }
}
BENCHMARK(coldRowByKey)->Unit(benchmark::kMillisecond);

void coldSearch(benchmark::State& state) {
    const QString text = QString::fromUtf8(typed.at(static_cast<std::size_t>(state.range(0))));
    for ([[maybe_unused]] const auto iteration : state) {
        state.PauseTiming();
        forget(file());
        state.ResumeTiming();
        PlaceList list(QStringLiteral("ru"));
        benchmark::DoNotOptimize(list.search(text, most));
    }
    state.SetLabel(text.toStdString());
}
BENCHMARK(coldSearch)->DenseRange(0, typed.size() - 1)->Unit(benchmark::kMillisecond);

void nearest(benchmark::State& state) {
    PlaceList list(QStringLiteral("en"));
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(list.nearest({.latitude = 52.53, .longitude = 13.38}));
}
BENCHMARK(nearest);

}  // namespace
