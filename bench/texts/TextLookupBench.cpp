// A text lookup beside the least that any lookup costs: bind, step, reset on the same database.
#include <QFile>
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include "foundation/Bundle.h"
#include "meteo/MeteoDB.h"
#include "meteo/MeteoMapping.h"

namespace {

using zephyrix::MeteoMapping;
using zephyrix::Number;

void bareBindStepReset(benchmark::State& state) {
    sqlite3* const connection = zephyrix::MeteoDB::sharedManager().dbConnection();
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(connection,
                       "SELECT * FROM t_list_mapping WHERE id_map = ? AND n = ? AND ww = ?", -1,
                       &statement, nullptr);
    if (statement == nullptr)
        return state.SkipWithError("the weather text database is not beside the program");
    int code = 0;
    for ([[maybe_unused]] const auto iteration : state) {
        sqlite3_bind_int(statement, 1, 2986);
        sqlite3_bind_int(statement, 2, code % 10);
        sqlite3_bind_int(statement, 3, code % 100);
        sqlite3_step(statement);
        benchmark::DoNotOptimize(sqlite3_column_text(statement, 3));
        sqlite3_reset(statement);
        ++code;
    }
    sqlite3_finalize(statement);
}
BENCHMARK(bareBindStepReset);

void stringForN(benchmark::State& state) {
    const QString russian = QStringLiteral("ru");
    int code = 0;
    for ([[maybe_unused]] const auto iteration : state) {
        benchmark::DoNotOptimize(
            MeteoMapping::stringForN(Number(code % 10), Number(code % 100), russian, true));
        ++code;
    }
}
BENCHMARK(stringForN);

}  // namespace
