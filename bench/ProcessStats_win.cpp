#include "ProcessStats.h"

#include <windows.h>

#include <psapi.h>

namespace quorin::bench {
namespace {

double Seconds(const FILETIME& time) {
    ULARGE_INTEGER ticks{};
    ticks.LowPart = time.dwLowDateTime;
    ticks.HighPart = time.dwHighDateTime;
    return static_cast<double>(ticks.QuadPart) * 1e-7;  // 100 ns ticks
}

}  // namespace

uint64_t ResidentBytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    counters.cb = sizeof counters;
    if (!GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters)) {
        return 0;
    }
    return counters.WorkingSetSize;
}

double CpuSeconds() {
    FILETIME created{};
    FILETIME exited{};
    FILETIME kernel{};
    FILETIME user{};
    if (!GetProcessTimes(GetCurrentProcess(), &created, &exited, &kernel, &user)) {
        return 0;
    }
    return Seconds(kernel) + Seconds(user);
}

}  // namespace quorin::bench
