#include "platform/LenientConversions.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "platform/Text.h"

namespace quorin {
namespace {

// from_chars takes a minus sign but not a plus sign.
std::string_view DropPlusSign(std::string_view text) {
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    return text;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Digits with at most one "." among them, and at least one digit.
bool IsUnsignedDecimal(std::string_view text) {
    const size_t point = text.find('.');
    const std::string_view whole = text.substr(0, point);
    const std::string_view fraction =
        point == std::string_view::npos ? std::string_view() : text.substr(point + 1);
    return whole.size() + fraction.size() > 0 && std::all_of(whole.begin(), whole.end(), IsDigit) &&
           std::all_of(fraction.begin(), fraction.end(), IsDigit);
}

std::optional<double> ParseDouble(std::string_view text) {
    text = DropPlusSign(TrimBlanks(text));
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

bool EqualsIgnoringAsciiCase(std::string_view text, std::string_view lowerWord) {
    if (text.size() != lowerWord.size()) {
        return false;
    }
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if ((c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c) != lowerWord[i]) {
            return false;
        }
    }
    return true;
}

}  // namespace

// By hand rather than with from_chars: "index.txt" holds a million of these.
std::optional<int32_t> ParseWholeNumber(std::string_view text) {
    text = TrimBlanks(text);
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && (negative || text.front() == '+')) {
        text.remove_prefix(1);
    }
    if (text.empty()) {
        return std::nullopt;
    }
    const uint64_t limit = negative ? uint64_t{1} << 31 : INT32_MAX;
    uint64_t value = 0;
    for (const char c : text) {
        const unsigned digit = static_cast<unsigned char>(c) - unsigned{'0'};
        value = value * 10 + digit;
        if (digit > 9 || value > limit) {
            return std::nullopt;
        }
    }
    return static_cast<int32_t>(negative ? -static_cast<int64_t>(value) : value);
}

std::optional<double> ParseDecimalNumber(std::string_view text) {
    text = TrimBlanks(text);
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && (negative || text.front() == '+')) {
        text.remove_prefix(1);
    }
    if (!IsUnsignedDecimal(text)) {
        return std::nullopt;
    }
    double value = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
    if (error == std::errc::result_out_of_range) {
        // Only a whole part with a digit other than 0 can be too large; anything else is too small.
        value = text.find_first_not_of("0.") < text.find('.') ? HUGE_VAL : 0.0;
    }
    return negative ? -value : value;
}

std::optional<int32_t> RoundToWholeNumber(double value) {
    double rounded = std::round(value);  // halves away from zero
    if (std::fabs(value - std::trunc(value)) == 0.5) {
        rounded = 2.0 * std::round(value / 2.0);
    }
    // Written so that a NaN fails too.
    if (!(rounded >= INT32_MIN && rounded <= INT32_MAX)) {
        return std::nullopt;
    }
    return static_cast<int32_t>(rounded);
}

std::optional<int32_t> ParseRoundedNumber(std::string_view text) {
    const std::optional<double> number = ParseDecimalNumber(text);
    return number ? RoundToWholeNumber(*number) : std::nullopt;
}

std::optional<bool> ParseLenientBoolean(std::string_view text) {
    text = TrimBlanks(text);
    if (EqualsIgnoringAsciiCase(text, "true")) {
        return true;
    }
    if (EqualsIgnoringAsciiCase(text, "false")) {
        return false;
    }
    const std::optional<double> number = ParseDouble(text);
    if (!number || !std::isfinite(*number)) {
        return std::nullopt;
    }
    return *number != 0;
}

}  // namespace quorin
