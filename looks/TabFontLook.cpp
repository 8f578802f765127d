// Not a test: how Wine draws the tab labels' font, without any of Quorin's code. Each line shows
// "Index" in Tahoma at one pixel height, regular and then bold, with the widths and weights the
// font reports. Under Wine 8 the bold face reports weight 700 and takes more room, but from 13 px
// up (the tab font at 144 dpi is 17 px) its strokes are drawn as thin as the regular ones; only
// the 11 px face (96 dpi) is drawn bold. Taken as
// docs/screenshots/wine-tab-font-96.png by `DPIS=96 scripts/with-xvfb looks/shots.sh tab_font`.
#include <windows.h>

#include <string>

namespace {

constexpr int kHeights[] = {11, 13, 15, 16, 17, 18, 19, 22};

struct Face {
    HFONT font;
    int width;
    LONG weight;
};

Face Measure(HDC dc, int height, int weight, const wchar_t* text) {
    const HFONT font = CreateFontW(-height, 0, 0, 0, weight, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                                   OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                                   DEFAULT_PITCH, L"Tahoma");
    const HGDIOBJ old = SelectObject(dc, font);
    SIZE size{};
    GetTextExtentPoint32W(dc, text, lstrlenW(text), &size);
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    SelectObject(dc, old);
    return {font, size.cx, metrics.tmWeight};
}

void Paint(HWND window) {
    PAINTSTRUCT paint{};
    const HDC dc = BeginPaint(window, &paint);
    const HFONT label = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    int top = 8;
    for (const int height : kHeights) {
        const Face regular = Measure(dc, height, FW_NORMAL, L"Index");
        const Face bold = Measure(dc, height, FW_BOLD, L"Index");
        SelectObject(dc, label);
        const std::wstring caption = std::to_wstring(height) + L" px";
        TextOutW(dc, 8, top, caption.c_str(), static_cast<int>(caption.size()));
        SelectObject(dc, regular.font);
        TextOutW(dc, 60, top, L"Index", 5);
        SelectObject(dc, bold.font);
        TextOutW(dc, 140, top, L"Index", 5);
        SelectObject(dc, label);
        const std::wstring figures =
            L"widths " + std::to_wstring(regular.width) + L" / " + std::to_wstring(bold.width) +
            L", weights " + std::to_wstring(regular.weight) + L" / " + std::to_wstring(bold.weight);
        TextOutW(dc, 220, top, figures.c_str(), static_cast<int>(figures.size()));
        DeleteObject(regular.font);
        DeleteObject(bold.font);
        top += height + 10;
    }
    EndPaint(window, &paint);
}

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            Paint(window);
            return 0;
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
        default:
            return DefWindowProcW(window, message, wParam, lParam);
    }
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = &Procedure;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    windowClass.lpszClassName = L"TabFontLook";
    RegisterClassW(&windowClass);
    CreateWindowW(L"TabFontLook", L"Tahoma bold", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40, 460,
                  300, nullptr, nullptr, instance, nullptr);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        DispatchMessageW(&message);
    }
    return 0;
}
