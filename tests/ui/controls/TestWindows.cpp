#include "TestWindows.h"

#include <algorithm>

#include "platform/WinHandles.h"
#include "ui/WindowClass.h"

namespace quorin::test {

namespace {

LRESULT CALLBACK CountingProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (auto* count = reinterpret_cast<int*>(GetWindowLongPtrW(window, GWLP_USERDATA))) {
        ++*count;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

TestParent::TestParent() {
    static const ATOM atom = RegisterWindowClass({.name = L"QuorinTestParent"});
    Create(MAKEINTATOM(atom), {.title = "Test parent",
                               .style = WS_OVERLAPPEDWINDOW,
                               .x = 40,
                               .y = 40,
                               .width = 420,
                               .height = 240});
}

LRESULT TestParent::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND) {
        commands.push_back({LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam)});
        return 0;
    }
    if (message == WM_APP && onApp) {
        onApp(wParam);
        return 0;
    }
    return Window::HandleMessage(message, wParam, lParam);
}

HWND CreateSpyChild(HWND parent, int& messageCount) {
    static const ATOM atom =
        RegisterWindowClass({.name = L"QuorinTestSpy", .procedure = &CountingProcedure});
    const HWND spy = CreateWindowExW(0, MAKEINTATOM(atom), L"Spy", WS_CHILD | WS_VISIBLE, 300, 100,
                                     50, 20, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
    SetWindowLongPtrW(spy, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&messageCount));
    return spy;
}

void SendMouse(HWND window, UINT message, int x, int y) {
    SendMessageW(window, message, message == WM_MOUSEMOVE ? 0 : MK_LBUTTON, MAKELPARAM(x, y));
}

SIZE ClientSize(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right, client.bottom};
}

std::vector<COLORREF> Render(HWND window) {
    const SIZE size = ClientSize(window);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy;  // top-down rows
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const UniqueMemoryDC dc(CreateCompatibleDC(nullptr));
    const UniqueBitmap bitmap(CreateDIBSection(dc.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    const SelectedObject selected(dc.get(), bitmap.get());
    SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.get()), PRF_CLIENT);
    GdiFlush();
    std::vector<COLORREF> pixels;
    const auto* quads = static_cast<const RGBQUAD*>(bits);
    for (int i = 0; i < size.cx * size.cy; ++i) {
        pixels.push_back(RGB(quads[i].rgbRed, quads[i].rgbGreen, quads[i].rgbBlue));
    }
    return pixels;
}

bool Shows(HWND window, COLORREF color) {
    const std::vector<COLORREF> pixels = Render(window);
    return std::find(pixels.begin(), pixels.end(), color) != pixels.end();
}

int Ink(HWND window) {
    const std::vector<COLORREF> pixels = Render(window);
    return static_cast<int>(std::count_if(pixels.begin(), pixels.end(),
                                          [&](COLORREF pixel) { return pixel != pixels[0]; }));
}

}  // namespace quorin::test
