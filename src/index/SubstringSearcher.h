#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace quorin {

// Finds one fixed byte string in many texts (Horspool's method; memchr for a single byte).
// Portable because not every C library has memmem.
class SubstringSearcher {
  public:
    explicit SubstringSearcher(std::string_view needle);

    // Offset of the first occurrence in text, or std::string_view::npos. An empty needle is
    // found at offset 0.
    size_t Find(std::string_view text) const;

  private:
    std::string needle_;
    std::array<size_t, 256> shift_{};
};

}  // namespace quorin
