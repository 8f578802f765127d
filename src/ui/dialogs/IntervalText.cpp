#include "ui/dialogs/IntervalText.h"

#include <array>
#include <charconv>
#include <cmath>

#include "platform/LenientConversions.h"

namespace quorin {
namespace {

double LeadingNumber(std::string_view text) {
    size_t i = text.find_first_not_of(' ');
    if (i == std::string_view::npos) {
        return 0;
    }
    std::string number;
    if (text[i] == '-' || text[i] == '+') {
        number += text[i++];
    }
    bool hasPoint = false;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '.' && !hasPoint) {
            hasPoint = true;
        } else if (c < '0' || c > '9') {
            break;
        }
        number += c;
    }
    return ParseDecimalNumber(number).value_or(0.0);
}

std::string ShortestDecimal(double number) {
    // Room for the longest fixed form of a double: a sign and 309 digits, or a sign, "0." and 324
    // places.
    std::array<char, 400> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                            std::chars_format::fixed);
    return std::string(buffer.data(), end);
}

}  // namespace

std::string CorrectedIntervalText(std::string_view text) {
    const double number = LeadingNumber(text);
    if (number == 0) {
        return "1";
    }
    // Digits beyond any double stay as typed; OK then refuses them as no interval.
    if (!std::isfinite(number)) {
        return std::string(text);
    }
    return ShortestDecimal(number);
}

}  // namespace quorin
