#pragma once

#include <cstdlib>
#include <optional>
#include <string_view>

namespace quorin::test {

// The programs that take screenshots draw as under high contrast when QUORIN_HIGH_CONTRAST is 1
// (looks/high_contrast.sh sets the colours): Wine never reports high contrast on.
inline std::optional<bool> LookHighContrast() {
    const char* value = std::getenv("QUORIN_HIGH_CONTRAST");
    if (value != nullptr && std::string_view(value) == "1") {
        return true;
    }
    return std::nullopt;
}

}  // namespace quorin::test
