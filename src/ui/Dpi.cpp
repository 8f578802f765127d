#include "ui/Dpi.h"

#include <cstdint>

#include "platform/WinHandles.h"

namespace quorin {

namespace {

int RoundedQuotient(std::int64_t numerator, std::int64_t denominator) {
    const std::int64_t half = denominator / 2;
    const std::int64_t quotient =
        numerator >= 0 ? (numerator + half) / denominator : -((-numerator + half) / denominator);
    return static_cast<int>(quotient);
}

// Looked up at run time: the DPI functions of user32 appeared in Windows 10 version 1607.
template <typename Function>
Function* FindUser32Function(const char* name) {
    const FARPROC found = GetProcAddress(GetModuleHandleW(L"user32.dll"), name);
    return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(found));
}

}  // namespace

int TwipsToPixels(int twips, int dpi) {
    return RoundedQuotient(std::int64_t{twips} * dpi, kTwipsPerInch);
}

int PixelsToTwips(int pixels, int dpi) {
    return RoundedQuotient(std::int64_t{pixels} * kTwipsPerInch, dpi);
}

int ScaleForDpi(int pixelsAt96, int dpi) {
    return MulDiv(pixelsAt96, dpi, USER_DEFAULT_SCREEN_DPI);
}

int ScreenDpi() {
    const WindowDC screen(nullptr);
    return GetDeviceCaps(screen.get(), LOGPIXELSY);
}

int WindowDpi(HWND window) {
    static const auto getDpiForWindow = FindUser32Function<UINT WINAPI(HWND)>("GetDpiForWindow");
    if (getDpiForWindow != nullptr && window != nullptr) {
        if (const UINT dpi = getDpiForWindow(window); dpi != 0) {
            return static_cast<int>(dpi);
        }
    }
    return ScreenDpi();
}

SIZE OuterSize(SIZE client, DWORD style, DWORD exStyle, int dpi) {
    static const auto adjustForDpi =
        FindUser32Function<BOOL WINAPI(RECT*, DWORD, BOOL, DWORD, UINT)>(
            "AdjustWindowRectExForDpi");
    RECT frame{0, 0, client.cx, client.cy};
    if (adjustForDpi != nullptr) {
        adjustForDpi(&frame, style, FALSE, exStyle, static_cast<UINT>(dpi));
    } else {
        AdjustWindowRectEx(&frame, style, FALSE, exStyle);
    }
    return {frame.right - frame.left, frame.bottom - frame.top};
}

LOGFONTW MessageFont(int dpi) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof(metrics);
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
    LOGFONTW font = metrics.lfMessageFont;
    // The system reports the font at the screen's DPI.
    font.lfHeight = MulDiv(font.lfHeight, dpi, ScreenDpi());
    return font;
}

UniqueFont SetMessageFont(HWND window, int dpi) {
    const LOGFONTW messageFont = MessageFont(dpi);
    UniqueFont font(CreateFontIndirectW(&messageFont));
    EnumChildWindows(
        window,
        [](HWND child, LPARAM newFont) {
            SendMessageW(child, WM_SETFONT, static_cast<WPARAM>(newFont), TRUE);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(font.get()));
    return font;
}

}  // namespace quorin
