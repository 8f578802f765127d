#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace quorin {

inline constexpr int32_t kDriveSlots = 21;

// The roots to index, each without a trailing separator ("C:"); slots from count on are empty.
struct DriveTable {
    std::array<std::string, kDriveSlots> slots;
    int32_t count = 0;
};

}  // namespace quorin
