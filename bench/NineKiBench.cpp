#include "BenchWorld.h"
#include "Ratio.h"
#include "core/Clock.h"
#include "core/Global.h"
#include "nineki/NineKiReports.h"
#include "profiles/cProfile.h"
#include "reports/pages/PageSurface.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

/// A report of the Nine Ki window on the real page model. Each calculation reads its catalogues anew.
template<class Report>
void nineKiReport(benchmark::State& state, Report&& write) {
    const BenchWorld world(1);
    FixedClock day(QDate(2024, 7, 1));
    Services services = Global::services();
    services.clock = &day;
    Global::use(services);
    Global::CurrentProfile = std::make_unique<cProfile>();
    Global::CurrentProfile->GetProfile(1);
    PageSurface compass;
    PageSurface report;
    for ([[maybe_unused]] auto round : state) {
        write(compass, report);
    }
    Global::CurrentProfile.reset();
}

void BM_FiveYearReport(benchmark::State& state) {
    nineKiReport(state, [](ReportSurface& compass, ReportSurface& report) {
        NineKiReports::GetMoveYears(compass, report, QStringLiteral("South-East"),
                                    NineKiReports::MOVE.toString());
    });
}
BENCHMARK(BM_FiveYearReport)->Unit(benchmark::kMillisecond);

void BM_DirectionReport(benchmark::State& state) {
    nineKiReport(state, [](ReportSurface& compass, ReportSurface& report) {
        NineKiReports::GetMoveDirections(compass, report, QStringLiteral("2024-07-01"),
                                         NineKiReports::MOVE.toString());
    });
}
BENCHMARK(BM_DirectionReport)->Unit(benchmark::kMillisecond);

[[maybe_unused]] const bool added = addRatio({"Nine Ki advice: the report on five years to that on one date",
                                              "BM_FiveYearReport", "BM_DirectionReport", 8.0});

} // namespace
