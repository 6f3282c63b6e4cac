"""The benchmarks of single operations, and what their counters say."""

import json
import os
import subprocess

REPETITIONS = 5


def counters_of(programs, program, pattern="."):
    """{benchmark: {counter: median}} of one Google Benchmark program."""
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", LANG="en_US.UTF-8",
                       TZ="Europe/Berlin")
    run = subprocess.run(
        [f"{programs}/{program}", "--benchmark_format=json", f"--benchmark_filter={pattern}",
         f"--benchmark_repetitions={REPETITIONS}", "--benchmark_enable_random_interleaving=true",
         "--benchmark_min_time=0.05"],
        env=environment, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    rows = json.loads(run.stdout)["benchmarks"]
    return {row["run_name"]: row for row in rows if row.get("aggregate_name") == "median"}


def named(rows, start):
    """The one benchmark whose name begins so."""
    return next(row for name, row in rows.items() if name.startswith(start))


def layout_pass(programs):
    return named(counters_of(programs, "cells_bench", "layoutPass"), "layoutPass")["quotient"]


def document(programs):
    return named(counters_of(programs, "bench_widget"), "documentFromBody")["of_floor"]


def text_lookup(programs):
    rows = counters_of(programs, "bench_texts")
    return rows["stringForN"]["cpu_time"] / rows["bareBindStepReset"]["cpu_time"]


def symbols(programs):
    """Composing as a multiple of memcpy, reading from the disk cache as one of decoding, and the
    slower of the memory cache's hits in microseconds."""
    rows = counters_of(programs, "bench_symbols", "composeFour|memoryCacheHit|diskHit")
    hits = [row["best_ns"] / 1000 for name, row in rows.items() if name.startswith("memoryCacheHit")]
    return (named(rows, "composeFour")["of_floor"], named(rows, "diskHit")["of_floor"], max(hits))


def temperature_text(programs):
    return named(counters_of(programs, "bench_meteo", "temperature"), "temperature")["of_floor"]
