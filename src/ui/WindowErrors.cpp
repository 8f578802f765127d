#include "ui/WindowErrors.h"

#include <windows.h>

#include <string>
#include <utility>

#include "platform/Text.h"

namespace quorin {

namespace {

WindowErrorHandler& CurrentHandler() {
    static WindowErrorHandler handler;
    return handler;
}

void ShowErrorBox(std::string_view message) {
    const std::wstring text = Widen(message);
    MessageBoxW(nullptr, text.c_str(), L"Quorin", MB_OK | MB_ICONERROR | MB_TASKMODAL);
}

}  // namespace

void SetWindowErrorHandler(WindowErrorHandler handler) {
    CurrentHandler() = std::move(handler);
}

void ReportWindowError(std::string_view message) noexcept {
    static bool reporting = false;
    if (reporting) {
        return;
    }
    reporting = true;
    try {
        if (CurrentHandler()) {
            CurrentHandler()(message);
        } else {
            ShowErrorBox(message);
        }
    } catch (...) {
        // The handler itself failed; there is nobody left to tell.
    }
    reporting = false;
}

}  // namespace quorin
