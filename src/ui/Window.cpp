#include "ui/Window.h"

#include <commctrl.h>
#include <windowsx.h>

#include <string>

#include "platform/Errors.h"
#include "platform/OsError.h"
#include "platform/Text.h"
#include "ui/Hourglass.h"

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

bool Window::TranslateKeys(HWND active, const MSG& message) {
    if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN) {
        return false;
    }
    // Only a window of this procedure keeps a Window in its user data.
    const bool ours =
        GetWindowLongPtrW(active, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&Window::Procedure);
    return ours && FromHandle(active) != nullptr && FromHandle(active)->OnKey(message);
}

RECT Window::RectInParent(HWND child) {
    RECT rect{};
    GetWindowRect(child, &rect);
    MapWindowPoints(nullptr, GetParent(child), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

void Window::SetIcon(HICON icon) const {
    SendMessageW(hwnd_, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon));
    SendMessageW(hwnd_, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(icon));
}

HWND Window::CreateControl(HWND parent, const wchar_t* className, std::string_view text,
                           DWORD style, int id, DWORD exStyle) {
    return CreateHandle(className,
                        {.title = text,
                         .style = WS_CHILD | WS_VISIBLE | style,
                         .exStyle = exStyle,
                         .x = 0,
                         .y = 0,
                         .width = 0,
                         .height = 0,
                         .parent = parent,
                         .id = id},
                        nullptr);
}

void Window::Create(const wchar_t* className, const WindowSpec& layout) {
    CreateHandle(className, layout, this);
}

HWND Window::CreateHandle(const wchar_t* className, const WindowSpec& layout, void* param) {
    const std::wstring title = Widen(layout.title);
    const HWND window = CreateWindowExW(
        layout.exStyle, className, title.c_str(), layout.style, layout.x, layout.y, layout.width,
        layout.height, layout.parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(layout.id)),
        GetModuleHandleW(nullptr), param);
    if (window == nullptr) {
        const std::string what =
            !layout.title.empty()       ? "The window \"" + std::string(layout.title) + "\""
            : IS_INTRESOURCE(className) ? std::string("A control")
                                        : "A control of the class \"" + Narrow(className) + "\"";
        throw Error(what + " could not be created: " + LastOsErrorText() + ".");
    }
    return window;
}

Window* Window::FromHandle(HWND hwnd) {
    return reinterpret_cast<Window*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
}

LRESULT Window::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            return OnCreate(*reinterpret_cast<const CREATESTRUCTW*>(lParam)) ? 0 : -1;
        case WM_DESTROY:
            OnDestroy();
            return 0;
        case WM_CLOSE:
            OnClose();
            return 0;
        case WM_SIZE:
            OnSize(static_cast<UINT>(wParam), GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
            return 0;
        case WM_TIMER:
            if (lParam != 0) {
                break;  // a timer with its own procedure: the system calls it
            }
            OnTimer(wParam);
            return 0;
        case WM_COMMAND:
            OnCommand(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
            return 0;
        case WM_NOTIFY:
            return OnNotify(*reinterpret_cast<const NMHDR*>(lParam));
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN:
            if (HBRUSH brush =
                    OnControlColor(reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam))) {
                return reinterpret_cast<LRESULT>(brush);
            }
            break;
        case WM_DPICHANGED:
            OnDpiChanged(HIWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
            return 0;
        case WM_SETCURSOR:
            // The wait pointer stays for the whole busy stretch, whatever the mouse is over.
            if (Hourglass::Shown()) {
                SetCursor(LoadCursorW(nullptr, IDC_WAIT));
                return TRUE;
            }
            break;
        default:
            break;
    }
    return DefaultMessage(message, wParam, lParam);
}

LRESULT Window::DefaultMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(hwnd_, message, wParam, lParam);
}

bool Window::OnCreate(const CREATESTRUCTW&) {
    return true;
}

void Window::OnClose() {
    DestroyWindow(hwnd_);
}

void Window::OnSize(UINT, int, int) {}

void Window::OnTimer(UINT_PTR) {}

void Window::OnCommand(int, int, HWND) {}

LRESULT Window::OnNotify(const NMHDR&) {
    return 0;
}

HBRUSH Window::OnControlColor(HWND, HDC) {
    return nullptr;
}

void Window::OnDpiChanged(int, const RECT& suggested) {
    SetWindowPos(hwnd_, nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
                 suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
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
                        // A window whose creation failed is not made at all.
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
