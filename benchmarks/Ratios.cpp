#include "benchmarks/Ratios.h"

#include <cstdio>
#include <map>
#include <vector>

namespace bench {

namespace {

struct Comparison {
    std::string name;
    std::string ours;
    std::string theirs; // empty: the aim is in milliseconds
    double divisor;     // of ours, for growth: how many times more items it has
    double aim;
};

std::vector<Comparison>& Comparisons() {
    static std::vector<Comparison> all;
    return all;
}

constexpr int repetitions = 5;

std::string Add(const std::string& name, Body body, benchmark::TimeUnit unit, long argument = -1) {
    auto* registered = benchmark::RegisterBenchmark(name.c_str(), body);
    registered->Unit(unit)->UseRealTime()->Repetitions(repetitions)->ReportAggregatesOnly();
    if (argument < 0)
        return name + "/repeats:" + std::to_string(repetitions) + "/real_time";
    registered->Arg(argument);
    return name + "/" + std::to_string(argument) + "/repeats:" + std::to_string(repetitions) + "/real_time";
}

// The usual table, and the median of each benchmark kept in seconds.
class Medians : public benchmark::ConsoleReporter {
  public:
    std::map<std::string, double> seconds;

    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (run.aggregate_name == "median")
                seconds[run.run_name.str()] =
                    run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
    }
};

void Print(const Comparison& comparison, const std::map<std::string, double>& seconds) {
    const auto ours = seconds.find(comparison.ours);
    if (ours == seconds.end())
        return; // filtered out
    if (comparison.theirs.empty()) {
        std::printf("LIMIT %s %.4g ms, at most %g\n", comparison.name.c_str(), ours->second * 1000, comparison.aim);
        return;
    }
    const auto theirs = seconds.find(comparison.theirs);
    if (theirs != seconds.end())
        std::printf("RATIO %s %.3f %g\n", comparison.name.c_str(), ours->second / theirs->second / comparison.divisor,
                    comparison.aim);
}

} // namespace

Ratio::Ratio(const std::string& name, Body ours, Body theirs, double aim, benchmark::TimeUnit unit) {
    Comparisons().push_back({name, Add(name + "/ours", ours, unit), Add(name + "/peer", theirs, unit), 1, aim});
}

Growth::Growth(const std::string& name, Body body, long small, long large, double items, double aim,
               benchmark::TimeUnit unit) {
    const std::string first = Add(name, body, unit, small);
    const std::string second = Add(name, body, unit, large);
    Comparisons().push_back({name, second, first, items, aim});
}

Limit::Limit(const std::string& name, Body body, double milliseconds, benchmark::TimeUnit unit) {
    Comparisons().push_back({name, Add(name, body, unit), {}, 1, milliseconds});
}

int RunAll(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    std::printf("\n");
    for (const Comparison& comparison : Comparisons())
        Print(comparison, medians.seconds);
    return 0;
}

} // namespace bench
