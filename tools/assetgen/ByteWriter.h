#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quorin::assets {

// Builds a little-endian binary file in memory; the file formats written here are all
// little-endian and some sizes are only known after their contents, hence Patch32.
class ByteWriter {
  public:
    void U8(uint8_t value) { bytes_.push_back(static_cast<char>(value)); }
    void U16(uint16_t value) {
        U8(static_cast<uint8_t>(value));
        U8(static_cast<uint8_t>(value >> 8));
    }
    void U32(uint32_t value) {
        U16(static_cast<uint16_t>(value));
        U16(static_cast<uint16_t>(value >> 16));
    }
    void I32(int32_t value) { U32(static_cast<uint32_t>(value)); }
    void FourCC(std::string_view code) { bytes_.append(code.substr(0, 4)); }
    void Bytes(std::string_view data) { bytes_.append(data); }
    void Zeros(size_t count) { bytes_.append(count, '\0'); }

    void Patch32(size_t offset, uint32_t value) {
        for (int i = 0; i < 4; ++i) {
            bytes_[offset + i] = static_cast<char>(value >> (8 * i));
        }
    }

    size_t Size() const { return bytes_.size(); }
    const std::string& Data() const { return bytes_; }

  private:
    std::string bytes_;
};

}  // namespace quorin::assets
