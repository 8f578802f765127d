#include "platform/registry/RegistryValue.h"

#include "platform/Errors.h"

#include <charconv>

namespace quorin {
namespace {

std::string_view TrimSpaces(std::string_view text) {
    const size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

std::string RegistryValue::AsText() const {
    if (const auto* number = std::get_if<std::int32_t>(&value_)) {
        return std::to_string(*number);
    }
    if (const auto* text = std::get_if<std::string>(&value_)) {
        return *text;
    }
    return {};
}

std::int32_t RegistryValue::AsNumber() const {
    if (const auto* number = std::get_if<std::int32_t>(&value_)) {
        return *number;
    }
    const auto* text = std::get_if<std::string>(&value_);
    if (text == nullptr) {
        return 0;
    }
    const std::string_view digits = TrimSpaces(*text);
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (digits.empty() || error != std::errc{} || end != digits.data() + digits.size()) {
        throw TypeMismatchError("The registry value \"" + *text + "\" is not a whole number.");
    }
    return number;
}

}  // namespace quorin
