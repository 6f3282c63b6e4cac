// From the bytes of a feed's answer to a weather document, beside the bare reading of the same
// JSON. "of_floor" is the ratio of the best rounds of both, measured by turns in the same run.
#include <algorithm>
#include <chrono>
#include <limits>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <benchmark/benchmark.h>

#include "widget/FeedAnswer.h"

namespace zephyrix {
namespace {

constexpr qsizetype usualSize = 4096;  // bytes
constexpr int callsARound = 20;        // so that reading the clock does not count

QJsonObject someDay(int number) {
    return {{QStringLiteral("date"), QStringLiteral("2015-06-%1").arg(number, 2, 10, QChar(u'0'))},
            {QStringLiteral("symbol"), 1121101},
            {QStringLiteral("tx"), 23.4},
            {QStringLiteral("tn"), 11.0 + number},
            {QStringLiteral("text"), QStringLiteral("fair, some clouds in the afternoon")}};
}

/// As the feed writes it, with so many days that it has the usual size.
QByteArray body() {
    const QJsonObject observation{
        {QStringLiteral("datetime"), QStringLiteral("2015-06-01T10:20:00+00:00")},
        {QStringLiteral("symbol"), 1121101},
        {QStringLiteral("tt"), 17.4},
        {QStringLiteral("td"), 9.1},
        {QStringLiteral("dd"), 240},
        {QStringLiteral("ff"), 9},
        {QStringLiteral("ffg"), 17.5},
        {QStringLiteral("rrr"), 0.2},
        {QStringLiteral("rrrh"), 1},
        {QStringLiteral("n"), 3},
        {QStringLiteral("ww"), 2},
        {QStringLiteral("ppp"), 1013.4}};
    QJsonArray days;
    QByteArray text;
    while (text.size() < usualSize) {
        days.append(someDay(static_cast<int>(days.size()) + 1));
        const QJsonObject answer{
            {QStringLiteral("obs"), QJsonObject{{QStringLiteral("lastObs"), observation}}},
            {QStringLiteral("forecast"),
             QJsonObject{{QStringLiteral("days"), QJsonObject{{QStringLiteral("day"), days}}}}}};
        text = QJsonDocument(answer).toJson(QJsonDocument::Compact);
    }
    return text;
}

template <typename Operation>
double nanosecondsACall(const Operation& operation) {
    const auto start = std::chrono::steady_clock::now();
    for (int call = 0; call < callsARound; ++call)
        operation();
    const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
    return taken.count() / callsARound;
}

void documentFromBody(benchmark::State& state) {
    const QByteArray text = body();
    const Number place(18228265);
    if (!FeedAnswer::fromBody(text, place).document.isValid())
        return state.SkipWithError("the body gives no document");
    double best = std::numeric_limits<double>::infinity();
    double bestFloor = best;
    for ([[maybe_unused]] const auto iteration : state) {
        bestFloor = std::min(bestFloor, nanosecondsACall([&] {
                                 benchmark::DoNotOptimize(QJsonDocument::fromJson(text).isNull());
                             }));
        best =
            std::min(best, nanosecondsACall([&] {
                         benchmark::DoNotOptimize(FeedAnswer::fromBody(text, place).document.uid);
                     }));
    }
    state.counters["bytes"] = static_cast<double>(text.size());
    state.counters["best_ns"] = best;
    state.counters["floor_ns"] = bestFloor;
    state.counters["of_floor"] = best / bestFloor;
}
BENCHMARK(documentFromBody);

}  // namespace
}  // namespace zephyrix

BENCHMARK_MAIN();
