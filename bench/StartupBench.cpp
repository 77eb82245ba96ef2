#include "BenchWorld.h"
#include "Ratio.h"

#include <benchmark/benchmark.h>

namespace {

void BM_StartOfProgram(benchmark::State& state) {
    const BenchWorld world(17);
    wholeLife(state, QStringLiteral(TALIVANE_STARTED_PROGRAM), {world.folder()});
}
BENCHMARK(BM_StartOfProgram)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The start of somebody who has been here before.
void BM_StartWithPersonAndHome(benchmark::State& state) {
    const BenchWorld world(17);
    world.rememberPersonAndHome();
    wholeLife(state, QStringLiteral(TALIVANE_STARTED_PROGRAM), {world.folder()});
}
BENCHMARK(BM_StartWithPersonAndHome)->UseManualTime()->Unit(benchmark::kMillisecond);

void BM_StartOfEmptyWindow(benchmark::State& state) {
    wholeLife(state, QStringLiteral(TALIVANE_EMPTY_WINDOW), {});
}
BENCHMARK(BM_StartOfEmptyWindow)->UseManualTime()->Unit(benchmark::kMillisecond);

[[maybe_unused]] const bool added =
    addRatio({"start to first painted window: the program to an empty window with its menus",
              "BM_StartOfProgram", "BM_StartOfEmptyWindow", 1.5}) &&
    addRatio({"the same with the last person and home opened and their pictures painted",
              "BM_StartWithPersonAndHome", "BM_StartOfEmptyWindow", 1.7});

} // namespace
