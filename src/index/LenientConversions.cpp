#include "index/LenientConversions.h"

#include <charconv>
#include <cmath>

namespace quorin {
namespace {

std::string_view TrimBlanks(std::string_view text) {
    const size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// from_chars takes a minus sign but not a plus sign.
std::string_view DropPlusSign(std::string_view text) {
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    return text;
}

template <typename Number>
std::optional<Number> ParseNumber(std::string_view text) {
    text = DropPlusSign(TrimBlanks(text));
    Number value{};
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

std::optional<int32_t> ParseWholeNumber(std::string_view text) {
    return ParseNumber<int32_t>(text);
}

std::optional<bool> ParseLenientBoolean(std::string_view text) {
    text = TrimBlanks(text);
    if (EqualsIgnoringAsciiCase(text, "true")) {
        return true;
    }
    if (EqualsIgnoringAsciiCase(text, "false")) {
        return false;
    }
    const std::optional<double> number = ParseNumber<double>(text);
    if (!number || !std::isfinite(*number)) {
        return std::nullopt;
    }
    return *number != 0;
}

}  // namespace quorin
