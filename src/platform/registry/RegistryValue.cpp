#include "platform/registry/RegistryValue.h"

#include "platform/Errors.h"
#include "platform/LenientConversions.h"

namespace quorin {

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
    const std::optional<std::int32_t> number = ParseWholeNumber(*text);
    if (!number) {
        throw TypeMismatchError("The registry value \"" + *text + "\" is not a whole number.");
    }
    return *number;
}

}  // namespace quorin
