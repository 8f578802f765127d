#include "platform/OsText.h"
#include "platform/Text.h"

#include <windows.h>

namespace quorin {

std::string AnsiToUtf8(std::string_view bytes) {
    if (bytes.empty()) {
        return {};
    }
    const int size = static_cast<int>(bytes.size());
    std::wstring wide(static_cast<size_t>(size), L'\0');
    // A single-byte code page gives one UTF-16 unit per byte; a double-byte one never more.
    const int length = MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, wide.data(), size);
    wide.resize(static_cast<size_t>(length));
    return Narrow(wide);
}

std::wstring OsUpperCase(std::wstring_view text) {
    std::wstring upper(text.size(), L'\0');
    // The invariant locale: a name's upper case must not change with the user's language.
    const int length = LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, text.data(),
                                     static_cast<int>(text.size()), upper.data(),
                                     static_cast<int>(upper.size()), nullptr, nullptr, 0);
    if (length <= 0) {
        return std::wstring(text);
    }
    upper.resize(static_cast<size_t>(length));
    return upper;
}

}  // namespace quorin
