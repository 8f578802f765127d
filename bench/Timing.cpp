#include "Timing.h"

#include "ProcessStats.h"

#include <algorithm>
#include <chrono>
#include <vector>

namespace quorin::bench {
namespace {

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

}  // namespace

Timings TimeRuns(int runs, const std::function<void()>& work) {
    work();
    std::vector<double> wall;
    std::vector<double> cpu;
    for (int i = 0; i < std::max(runs, 1); ++i) {
        const auto start = std::chrono::steady_clock::now();
        const double cpuStart = CpuSeconds();
        work();
        cpu.push_back(CpuSeconds() - cpuStart);
        wall.push_back(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    return Timings{Median(wall), Median(cpu)};
}

}  // namespace quorin::bench
