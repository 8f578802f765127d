#include "platform/OsError.h"

#include "platform/Text.h"

#include <windows.h>

namespace quorin {

std::string OsErrorText(unsigned long code) {
    wchar_t buffer[512];
    DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                  nullptr, code, 0, buffer, ARRAYSIZE(buffer), nullptr);
    // System messages end in ".\r\n"; the caller ends the sentence.
    while (length > 0 && (buffer[length - 1] == L'\r' || buffer[length - 1] == L'\n' ||
                          buffer[length - 1] == L'.' || buffer[length - 1] == L' ')) {
        --length;
    }
    if (length == 0) {
        return "Windows error " + std::to_string(code);
    }
    return Narrow(std::wstring_view(buffer, length));
}

std::string LastOsErrorText() {
    return OsErrorText(GetLastError());
}

}  // namespace quorin
