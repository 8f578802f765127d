#pragma once

#include <functional>

namespace quorin::bench {

// Medians over the runs, in seconds.
struct Timings {
    double wall = 0;
    double cpu = 0;
};

// Runs work `runs` times after one untimed warm-up run.
Timings TimeRuns(int runs, const std::function<void()>& work);

}  // namespace quorin::bench
