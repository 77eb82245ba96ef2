#include "BenchWorld.h"
#include "Ratio.h"
#include "locations/cLocation.h"
#include "profiles/cProfile.h"
#include "reports/pages/PageSurface.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

/// The whole-home report on the real page model. The time is that of one room.
void wholeHomeReport(benchmark::State& state, int rooms) {
    const BenchWorld world(rooms);
    Global::CurrentProfile = std::make_unique<cProfile>();
    Global::CurrentProfile->GetProfile(1);
    Global::CurrentLocation = std::make_unique<cLocation>();
    Global::CurrentLocation->LoadLocations();
    Global::CurrentLocation->LoadFloors();
    Global::CurrentLocation->LoadRooms();
    Global::CurrentLocation->GetLocation(1);
    PageSurface surface;
    while (state.KeepRunningBatch(rooms)) {
        Global::CurrentLocation->AnalyzeRooms(surface);
    }
    state.counters["pages"] = surface.PageCount();
    Global::CurrentLocation.reset();
    Global::CurrentProfile.reset();
}

void BM_ReportOfTenRooms(benchmark::State& state) {
    wholeHomeReport(state, 10);
}
BENCHMARK(BM_ReportOfTenRooms);

void BM_ReportOfThreeHundredRooms(benchmark::State& state) {
    wholeHomeReport(state, 300);
}
BENCHMARK(BM_ReportOfThreeHundredRooms);

[[maybe_unused]] const bool added = addRatio({"whole-home report, time of a room: 300 rooms to 10 rooms",
                                              "BM_ReportOfThreeHundredRooms", "BM_ReportOfTenRooms", 1.5});

} // namespace
