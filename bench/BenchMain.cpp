#include "Ratio.h"

#include <QApplication>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <optional>
#include <regex>
#include <string>
#include <utility>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif
#ifdef __linux__
#include <sched.h>
#endif

namespace {

std::vector<Ratio>& ratios() {
    static std::vector<Ratio> all;
    return all;
}

std::vector<QuotientRatio>& quotients() {
    static std::vector<QuotientRatio> all;
    return all;
}

/// The line about a ratio.
std::string told(double value, double limit, const char* what) {
    std::array<char, 48> figures{};
    std::snprintf(figures.data(), figures.size(), "ratio %.2f (at most %.2f)", value, limit);
    return std::string(figures.data()) + (value > limit ? "  EXCEEDED  " : "  ") + what;
}

/// Keeps this thread, and the programs that it starts, on one processor. Turn by turn, the two of a pair
/// would settle on one each, and what is compared would be the processors: a shared machine's are not equally
/// fast.
class OneProcessor {
public:
#ifdef __linux__
    OneProcessor() {
        sched_getaffinity(0, sizeof all_, &all_);
        int first = 0;
        while (first < CPU_SETSIZE - 1 && !CPU_ISSET(first, &all_)) {
            ++first;
        }
        cpu_set_t one;
        CPU_ZERO(&one);
        CPU_SET(first, &one);
        sched_setaffinity(0, sizeof one, &one);
    }
    OneProcessor(const OneProcessor&) = delete;
    OneProcessor& operator=(const OneProcessor&) = delete;
    ~OneProcessor() {
        sched_setaffinity(0, sizeof all_, &all_);
    }

private:
    cpu_set_t all_ = {};
#endif
};

/// Prints each benchmark's median as the console does, and keeps every repetition's time for the ratios.
class CollectingReporter final : public benchmark::ConsoleReporter {
public:
    CollectingReporter()
        : ConsoleReporter(OO_Tabular) {}

    /// Tells of the machine once, not before each pair.
    bool ReportContext(const Context& context) override {
        static bool told = false;
        return std::exchange(told, true) || ConsoleReporter::ReportContext(context);
    }

    void ReportRuns(const std::vector<Run>& reports) override {
        for (const Run& run : reports) {
            if (run.aggregate_name == "median") {
                ConsoleReporter::ReportRuns({run});
            }
            if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
                times_[run.run_name.function_name].push_back(run.GetAdjustedRealTime());
            }
        }
    }

    /// The median of the two benchmarks' times, over one another; 0 where one of them failed.
    [[nodiscard]] double ratio(const Ratio& pair) {
        const double baseline = median(times_[pair.baseline]);
        return baseline > 0 ? median(times_[pair.measured]) / baseline : 0;
    }

private:
    static double median(std::vector<double>& times) {
        std::sort(times.begin(), times.end());
        return times.empty() ? 0 : times[times.size() / 2];
    }

    std::map<std::string, std::vector<double>> times_;
};

/// Runs the pair's two benchmarks, turn by turn, and returns the line about it. A pair is run by itself, so
/// that both see the machine at the same speed.
std::string measured(const Ratio& pair) {
    benchmark::SetBenchmarkFilter(std::string("^(") + pair.measured + '|' + pair.baseline + ")(/|$)");
    std::optional<OneProcessor> pinned;
    if (pair.onOneProcessor) {
        pinned.emplace();
    }
    CollectingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return told(reporter.ratio(pair), pair.limit, pair.what);
}

std::string measured(const QuotientRatio& pair) {
    const Quotient figures = pair.measure();
    std::printf("%-60s %.0f to %.0f %s\n", pair.what, figures.measured, figures.baseline, figures.unit);
    return told(figures.baseline > 0 ? figures.measured / figures.baseline : 0, pair.limit, pair.what);
}

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

bool addQuotient(const QuotientRatio& ratio) {
    quotients().push_back(ratio);
    return true;
}

int main(int argc, char** argv) {
    keepFreedMemory();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // Medians of many short, interleaved repetitions: the machine may slow down in the middle of a run.
    std::vector<char*> arguments(argv, argv + argc);
    std::string repetitions = "--benchmark_repetitions=21";
    std::string seconds = "--benchmark_min_time=0.1";
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    arguments.insert(arguments.begin() + 1, {repetitions.data(), seconds.data(), interleaving.data()});
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
        return 1;
    }
    const QApplication application(argc, argv);
    const std::regex wanted(benchmark::GetBenchmarkFilter());
    std::vector<std::string> lines;
    for (const Ratio& pair : ratios()) {
        if (std::regex_search(pair.measured, wanted) || std::regex_search(pair.baseline, wanted)) {
            lines.push_back(measured(pair));
        }
    }
    if (std::regex_search("memory", wanted)) {
        for (const QuotientRatio& pair : quotients()) {
            lines.push_back(measured(pair));
        }
    }
    for (const std::string& line : lines) {
        std::puts(line.c_str());
    }
    return 0;
}
