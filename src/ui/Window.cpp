#include "ui/Window.h"

#include <string>

#include "platform/Errors.h"
#include "platform/OsError.h"
#include "platform/Text.h"

namespace quorin {

Window::~Window() {
    if (hwnd_ != nullptr && !ownedByWindow_) {
        // Unbind first: the messages of the destruction must not reach a half-destroyed object.
        const HWND window = hwnd_;
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        hwnd_ = nullptr;
        DestroyWindow(window);
    }
}

LRESULT CALLBACK Window::Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* create = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        if (auto* window = static_cast<Window*>(create->lpCreateParams)) {
            Bind(hwnd, window);
        }
    }
    return Route(hwnd, message, wParam, lParam);
}

void Window::Create(const wchar_t* className, const WindowSpec& layout) {
    CreateHandle(className, layout, this);
}

HWND Window::CreateHandle(const wchar_t* className, const WindowSpec& layout, void* param) {
    const std::wstring title = Widen(layout.title);
    const HWND window = CreateWindowExW(layout.exStyle, className, title.c_str(), layout.style, layout.x,
                                        layout.y, layout.width, layout.height, layout.parent,
                                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(layout.id)),
                                        GetModuleHandleW(nullptr), param);
    if (window == nullptr) {
        throw Error("The window \"" + std::string(layout.title) +
                    "\" could not be created: " + LastOsErrorText() + ".");
    }
    return window;
}

Window* Window::FromHandle(HWND hwnd) {
    return reinterpret_cast<Window*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
}

LRESULT Window::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(hwnd_, message, wParam, lParam);
}

void Window::Bind(HWND hwnd, Window* window) {
    window->hwnd_ = hwnd;
    SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(window));
}

void Window::Adopt(HWND hwnd, std::unique_ptr<Window> window) {
    window->ownedByWindow_ = true;
    Bind(hwnd, window.release());
}

LRESULT Window::Route(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    Window* window = FromHandle(hwnd);
    if (window == nullptr) {
        // Messages that come before WM_NCCREATE (WM_GETMINMAXINFO) or after unbinding.
        return DefWindowProcW(hwnd, message, wParam, lParam);
    }
    const LRESULT result =
        CallGuarded([&] { return window->HandleMessage(message, wParam, lParam); },
                    [&]() -> LRESULT {
                        // A paint that failed must not be asked for again and again.
                        if (message == WM_PAINT) {
                            ValidateRect(hwnd, nullptr);
                        }
                        // A window whose creation failed is not made at all (WM_NCCREATE fails with
                        // 0).
                        return message == WM_CREATE ? -1 : 0;
                    });
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(hwnd, GWLP_USERDATA, 0);
        window->hwnd_ = nullptr;
        if (window->ownedByWindow_) {
            std::unique_ptr<Window> owned(window);  // the window made the object; both go now
        }
    }
    return result;
}

}  // namespace quorin
