#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace quorin {

// A decimal whole number with an optional sign and blanks on either side, as settings and
// "index.txt" store numbers; nullopt for anything else or a value beyond 32 bits.
std::optional<int32_t> ParseWholeNumber(std::string_view text);

// "True" or "False" in any case, or any number (zero is false), with blanks on either side:
// settings writers store booleans both ways.
std::optional<bool> ParseLenientBoolean(std::string_view text);

}  // namespace quorin
