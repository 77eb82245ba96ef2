#include "BenchWorld.h"
#include "Ratio.h"

#include <QElapsedTimer>
#include <QProcess>
#include <benchmark/benchmark.h>

namespace {

/// A program's whole life, from its start to its first painted window.
void wholeLife(benchmark::State& state, const QString& program, const QStringList& arguments) {
    while (state.KeepRunning()) {
        QElapsedTimer timer;
        timer.start();
        QProcess process;
        process.start(program, arguments);
        const bool finished = process.waitForFinished() && process.exitCode() == 0;
        state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) * 1e-9);
        if (!finished) {
            state.SkipWithError("the program did not reach its first picture");
        }
    }
}

void BM_StartOfProgram(benchmark::State& state) {
    const BenchWorld world(17);
    wholeLife(state, QStringLiteral(TALIVANE_STARTED_PROGRAM), {world.folder()});
}
BENCHMARK(BM_StartOfProgram)->UseManualTime()->Unit(benchmark::kMillisecond);

void BM_StartOfEmptyWindow(benchmark::State& state) {
    wholeLife(state, QStringLiteral(TALIVANE_EMPTY_WINDOW), {});
}
BENCHMARK(BM_StartOfEmptyWindow)->UseManualTime()->Unit(benchmark::kMillisecond);

[[maybe_unused]] const bool added =
    addRatio({"start to first painted window: the program to an empty window with its menus",
              "BM_StartOfProgram", "BM_StartOfEmptyWindow", 1.5});

} // namespace
