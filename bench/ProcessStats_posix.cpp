#include "ProcessStats.h"

#include <ctime>
#include <fstream>

#include <unistd.h>

namespace quorin::bench {

uint64_t ResidentBytes() {
    uint64_t totalPages = 0;
    uint64_t residentPages = 0;
    std::ifstream("/proc/self/statm") >> totalPages >> residentPages;
    return residentPages * static_cast<uint64_t>(sysconf(_SC_PAGESIZE));
}

double CpuSeconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

}  // namespace quorin::bench
