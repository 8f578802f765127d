#include "ui/TextFlow.h"

#include <string>

#include "platform/Text.h"
#include "platform/WinHandles.h"
#include "ui/Window.h"
#include "ui/WindowText.h"

namespace quorin {

namespace {

// How a plain static control lays out its text.
constexpr UINT kStaticFormat = DT_WORDBREAK | DT_EXPANDTABS | DT_NOPREFIX;

int WrappedHeight(HDC dc, const std::wstring& text, size_t length, int width) {
    RECT box{0, 0, width, 0};
    DrawTextW(dc, text.c_str(), static_cast<int>(length), &box, kStaticFormat | DT_CALCRECT);
    return box.bottom;
}

int TextWidth(HDC dc, std::wstring_view text) {
    SIZE size{};
    GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size);
    return size.cx;
}

}  // namespace

void PlaceAfterText(HWND label, HWND follower) {
    const std::wstring text = Widen(WindowText(label));
    const RECT area = Window::RectInParent(label);
    const int width = area.right - area.left;
    const WindowDC dc(label);
    const SelectedObject font(dc.get(),
                              reinterpret_cast<HGDIOBJ>(SendMessageW(label, WM_GETFONT, 0, 0)));
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc.get(), &metrics);

    // Wrapping fills each line before the next, so the last line starts after the longest
    // prefix, ending at a blank, that still takes one line less than the whole text. The blank
    // is measured with its prefix: a word that fills its line exactly is moved down by some
    // wrappers (Wine's) when a blank follows it.
    const int height = WrappedHeight(dc.get(), text, text.size(), width);
    size_t lastLine = 0;
    for (size_t blank = text.find(L' '); blank != std::wstring::npos;
         blank = text.find(L' ', blank + 1)) {
        if (WrappedHeight(dc.get(), text, blank + 1, width) < height) {
            lastLine = blank + 1;
        }
    }
    RECT own{};
    GetWindowRect(follower, &own);
    int left = area.left + TextWidth(dc.get(), std::wstring_view(text).substr(lastLine)) +
               TextWidth(dc.get(), L" ");
    int top = area.top + height - metrics.tmHeight;
    if (left + (own.right - own.left) > area.right) {
        left = area.left;
        top += metrics.tmHeight;
    }
    SetWindowPos(follower, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

int ClearOfText(HWND label) {
    const WindowDC dc(label);
    const SelectedObject font(dc.get(),
                              reinterpret_cast<HGDIOBJ>(SendMessageW(label, WM_GETFONT, 0, 0)));
    return Window::RectInParent(label).left + TextWidth(dc.get(), Widen(WindowText(label))) +
           TextWidth(dc.get(), L" ");
}

}  // namespace quorin
