#pragma once

#include <cstdint>
#include <string>

namespace quorin::assets {

inline uint32_t Le16(const std::string& data, size_t offset) {
    return static_cast<uint8_t>(data.at(offset)) |
           static_cast<uint32_t>(static_cast<uint8_t>(data.at(offset + 1))) << 8;
}

inline uint32_t Le32(const std::string& data, size_t offset) {
    return Le16(data, offset) | Le16(data, offset + 2) << 16;
}

}  // namespace quorin::assets
