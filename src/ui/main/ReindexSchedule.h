#pragma once

namespace quorin {

inline constexpr unsigned kReindexTimerMilliseconds = 65000;

// A timer tick rebuilds once a full day has passed since the last build. The user's update
// interval is only shown, never used here: the threshold is fixed on purpose.
constexpr bool ReindexDue(double now, double lastUpdated) {
    return now > lastUpdated + 1.0;
}

}  // namespace quorin
