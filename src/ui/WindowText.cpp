#include "ui/WindowText.h"

#include "platform/Text.h"

namespace quorin {

std::string WindowText(HWND window) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(
        static_cast<size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return Narrow(text);
}

void SetText(HWND window, std::string_view text) {
    SetWindowTextW(window, Widen(text).c_str());
}

void SetLiveText(HWND window, std::string_view text) {
    SetText(window, text);
    NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, window, OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace quorin
