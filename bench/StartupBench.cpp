#include "BenchWorld.h"
#include "Ratio.h"

#include <benchmark/benchmark.h>

namespace {

/// Single lives, many of them: their median is not moved by those that something disturbed.
void manySingleLives(benchmark::internal::Benchmark* start) {
    constexpr int lives = 61;
    start->Iterations(1)->Repetitions(lives)->UseManualTime()->Unit(benchmark::kMillisecond);
}

void BM_StartOfProgram(benchmark::State& state) {
    const BenchWorld world(17);
    wholeLife(state, QStringLiteral(TALIVANE_STARTED_PROGRAM), {world.folder()});
}
BENCHMARK(BM_StartOfProgram)->Apply(manySingleLives);

/// The start of somebody who has been here before.
void BM_StartWithPersonAndHome(benchmark::State& state) {
    const BenchWorld world(17);
    world.rememberPersonAndHome();
    wholeLife(state, QStringLiteral(TALIVANE_STARTED_PROGRAM), {world.folder()});
}
BENCHMARK(BM_StartWithPersonAndHome)->Apply(manySingleLives);

void BM_StartOfEmptyWindow(benchmark::State& state) {
    wholeLife(state, QStringLiteral(TALIVANE_EMPTY_WINDOW), {});
}
BENCHMARK(BM_StartOfEmptyWindow)->Apply(manySingleLives);

[[maybe_unused]] const bool added =
    addRatio({"start to first painted window: the program to an empty window with its menus",
              "BM_StartOfProgram", "BM_StartOfEmptyWindow", 1.5}) &&
    addRatio({"the same with the last person and home opened and their pictures painted",
              "BM_StartWithPersonAndHome", "BM_StartOfEmptyWindow", 1.7});

} // namespace
