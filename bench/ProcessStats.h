#pragma once

#include <cstdint>

namespace quorin::bench {

// Bytes of this process's memory that are resident (the working set on Windows).
uint64_t ResidentBytes();

// User and system time this process has used so far. The machine is shared, so CPU time is
// what says how much work a run took; the wall clock also counts waiting for a core.
double CpuSeconds();

}  // namespace quorin::bench
