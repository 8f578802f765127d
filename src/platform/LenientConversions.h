#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace quorin {

// A decimal whole number with an optional sign and blanks on either side, as settings and
// "index.txt" store numbers; nullopt for anything else or a value beyond 32 bits.
std::optional<int32_t> ParseWholeNumber(std::string_view text);

// A decimal number with an optional sign, an optional fraction after a ".", and blanks on either
// side, as the Options dialog leaves the update interval; no exponent and no hexadecimal, like
// ParseWholeNumber. nullopt for anything else; a number beyond double's range gives an infinity.
std::optional<double> ParseDecimalNumber(std::string_view text);

// The nearest whole number, halves to even as a numeric conversion rounds ("2.5" gives 2,
// "3.5" gives 4); nullopt when 32 bits cannot hold it.
std::optional<int32_t> RoundToWholeNumber(double value);

// A number as settings hold positions and sizes: ParseDecimalNumber rounded by
// RoundToWholeNumber; nullopt for text that is not a number or does not fit 32 bits.
std::optional<int32_t> ParseRoundedNumber(std::string_view text);

// "True" or "False" in any case, or any number (zero is false), with blanks on either side:
// settings writers store booleans both ways.
std::optional<bool> ParseLenientBoolean(std::string_view text);

}  // namespace quorin
