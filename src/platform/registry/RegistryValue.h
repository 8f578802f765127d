#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>

namespace quorin {

// What a registry read gives: nothing, a text or a signed 32-bit number.
class RegistryValue {
  public:
    RegistryValue() = default;
    explicit RegistryValue(std::string text) : value_(std::move(text)) {}
    explicit RegistryValue(std::int32_t number) : value_(number) {}

    bool IsEmpty() const { return std::holds_alternative<std::monostate>(value_); }

    // Empty gives "", a number its decimal digits.
    std::string AsText() const;
    // Empty gives 0; a text must be a whole number in range, otherwise TypeMismatchError.
    std::int32_t AsNumber() const;

    friend bool operator==(const RegistryValue&, const RegistryValue&) = default;

  private:
    std::variant<std::monostate, std::string, std::int32_t> value_;
};

}  // namespace quorin
