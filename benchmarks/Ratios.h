// Pairs of benchmarks whose times are compared: ours beside what a user would pick instead, in one run.
#pragma once

#include <benchmark/benchmark.h>

#include <string>

namespace bench {

using Body = void (*)(benchmark::State&);

// Registers both bodies and the line `RATIO name ratio aim` that compares their median times; the ratio is to stay at
// or below the aim.
struct Ratio {
    Ratio(const std::string& name, Body ours, Body theirs, double aim,
          benchmark::TimeUnit unit = benchmark::kMillisecond);
};

// Ours at two sizes: the time at the large size over that at the small one, divided by `items`, how many times more of
// them the large size has. Around 1 for linear growth; with `items` 1, for constant time.
struct Growth {
    Growth(const std::string& name, Body body, long small, long large, double items, double aim,
           benchmark::TimeUnit unit = benchmark::kMillisecond);
};

// One of ours with nothing to compare it to but a limit in milliseconds.
struct Limit {
    Limit(const std::string& name, Body body, double milliseconds, benchmark::TimeUnit unit = benchmark::kMillisecond);
};

// Runs everything that was registered; the result is the process's exit status.
int RunAll(int argc, char** argv);

} // namespace bench
