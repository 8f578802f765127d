#include "platform/OsText.h"
#include "platform/Text.h"

#include <array>
#include <clocale>
#include <cwctype>

#include <locale.h>

namespace quorin {
namespace {

// Windows-1252 gives 0x80-0x9F printable characters; the five bytes it leaves undefined map
// to the C1 controls of the same value, as Windows itself decodes them.
constexpr std::array<wchar_t, 32> kCp1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// Created once: upper-casing must not depend on the process's current locale.
locale_t Utf8Locale() {
    static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return locale;
}

}  // namespace

std::string AnsiToUtf8(std::string_view bytes) {
    std::wstring wide;
    wide.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        wide.push_back(byte >= 0x80 && byte <= 0x9F ? kCp1252High[byte - 0x80] : byte);
    }
    return Narrow(wide);
}

std::wstring OsUpperCase(std::wstring_view text) {
    std::wstring upper(text);
    const locale_t locale = Utf8Locale();
    if (locale == nullptr) {
        return upper;
    }
    for (wchar_t& c : upper) {
        c = static_cast<wchar_t>(towupper_l(static_cast<wint_t>(c), locale));
    }
    return upper;
}

}  // namespace quorin
