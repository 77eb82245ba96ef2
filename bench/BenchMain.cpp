#include "Ratio.h"

#include <QApplication>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

std::vector<Ratio>& ratios() {
    static std::vector<Ratio> all;
    return all;
}

/// Prints as the console does and keeps every repetition's time for the ratios.
class CollectingReporter final : public benchmark::ConsoleReporter {
public:
    CollectingReporter()
        : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& reports) override {
        ConsoleReporter::ReportRuns(reports);
        for (const Run& run : reports) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
                times_[run.run_name.str()].push_back(run.GetAdjustedRealTime());
            }
        }
    }

    void printRatios() const {
        for (const Ratio& ratio : ratios()) {
            const double measured = median(ratio.measured);
            const double baseline = median(ratio.baseline);
            if (measured > 0 && baseline > 0) {
                const double value = measured / baseline;
                std::printf("ratio %.2f (at most %.2f)%s  %s\n", value, ratio.limit,
                            value > ratio.limit ? "  EXCEEDED" : "", ratio.what);
            }
        }
    }

private:
    [[nodiscard]] double median(const char* name) const {
        for (const auto& [key, found] : times_) {
            if (key == name || key.rfind(std::string(name) + "/real_time", 0) == 0 ||
                key.rfind(std::string(name) + "/manual_time", 0) == 0) {
                std::vector<double> sorted = found;
                std::sort(sorted.begin(), sorted.end());
                return sorted[sorted.size() / 2];
            }
        }
        return 0;
    }

    std::map<std::string, std::vector<double>> times_;
};

/// Fixes how the C library gives memory back. Left to itself it changes its mind with what ran before, and
/// then one of a pair pays for new pages at every turn and the other one does not.
void keepFreedMemory() {
#ifdef __GLIBC__
    constexpr int largestBlock = 32 << 20;
    constexpr int never = 1 << 30;
    mallopt(M_MMAP_THRESHOLD, largestBlock);
    mallopt(M_TRIM_THRESHOLD, never);
#endif
}

} // namespace

bool addRatio(const Ratio& ratio) {
    ratios().push_back(ratio);
    return true;
}

int main(int argc, char** argv) {
    keepFreedMemory();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // Medians of interleaved repetitions: the machine may slow down in the middle of a run.
    std::vector<char*> arguments(argv, argv + argc);
    std::string repetitions = "--benchmark_repetitions=7";
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    arguments.insert(arguments.begin() + 1, {repetitions.data(), interleaving.data()});
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
        return 1;
    }
    const QApplication application(argc, argv);
    CollectingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatios();
    return 0;
}
