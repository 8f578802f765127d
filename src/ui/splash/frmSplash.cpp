#include "ui/splash/frmSplash.h"

#include "QuorinVersion.h"
#include "resource.h"
#include "ui/Dpi.h"
#include "ui/PaintDc.h"
#include "ui/WindowClass.h"

namespace quorin {

namespace {

// Layout in pixels at 96 DPI. The picture fills the top; its left part leaves room for the
// program's name beside the mark drawn into it.
constexpr int kClientWidth = 400;
constexpr int kClientHeight = 220;
constexpr int kPictureHeight = 170;
constexpr RECT kNameRect = {104, 36, 392, 84};
constexpr RECT kTaglineRect = {106, 84, 392, 106};
constexpr int kNameHeight = 44;
constexpr int kTaglineHeight = 16;
constexpr int kBandMargin = 16;
constexpr int kButtonWidth = 80;
constexpr int kButtonHeight = 26;
constexpr int kCaptionHeight = 18;

// Text on the picture is part of the picture, so it takes the picture's colours.
constexpr COLORREF kNameColor = RGB(0xFF, 0xFF, 0xFF);
constexpr COLORREF kTaglineColor = RGB(0xD6, 0xE6, 0xFD);

void RegisterSplashClass() {
    static const ATOM atom = [] {
        WindowClass splashClass;
        splashClass.name = kSplashClass;
        splashClass.background = kNoBackground;
        return RegisterWindowClass(splashClass);
    }();
    static_cast<void>(atom);
}

UniqueFont CreateTextFont(int dpi, int pixelHeight, LONG weight) {
    LOGFONTW font = MessageFont(dpi);
    if (pixelHeight != 0) {
        font.lfHeight = -ScaleForDpi(pixelHeight, dpi);
    }
    font.lfWeight = weight;
    font.lfQuality = CLEARTYPE_QUALITY;
    return UniqueFont(CreateFontIndirectW(&font));
}

}  // namespace

frmSplash::frmSplash() {
    RegisterSplashClass();
}

void frmSplash::Show() {
    dpi_ = ScreenDpi();
    const DWORD style = WS_POPUP | WS_BORDER;
    const SIZE outer = OuterSize(
        {ScaleForDpi(kClientWidth, dpi_), ScaleForDpi(kClientHeight, dpi_)}, style, 0, dpi_);
    RECT workArea{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &workArea, 0);

    WindowSpec layout;
    // Not "Quorin", which names the main window to the user and to the scripts that look for it.
    layout.title = "Quorin is starting";
    layout.style = style;
    layout.width = outer.cx;
    layout.height = outer.cy;
    layout.x = workArea.left + (workArea.right - workArea.left - layout.width) / 2;
    layout.y = workArea.top + (workArea.bottom - workArea.top - layout.height) / 2;
    Create(kSplashClass, layout);
    ShowWindow(hwnd(), SW_SHOW);
    SetFocus(cmdOK);
    UpdateWindow(hwnd());
}

void frmSplash::Unload() {
    if (hwnd() != nullptr) {
        DestroyWindow(hwnd());
    }
}

LRESULT frmSplash::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_PAINT) {
        Form_Paint();
        return 0;
    }
    return Window::HandleMessage(message, wParam, lParam);
}

bool frmSplash::OnCreate(const CREATESTRUCTW&) {
    dpi_ = WindowDpi(hwnd());
    picture_.reset(
        static_cast<HBITMAP>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDB_SPLASH),
                                        IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    lblVersion_ = CreateControl(hwnd(), L"STATIC", "Version " QUORIN_VERSION_TEXT,
                                SS_LEFT | SS_NOPREFIX, kSplashVersionId);
    cmdOK = CreateControl(hwnd(), L"BUTTON", "OK", WS_TABSTOP | BS_DEFPUSHBUTTON, kSplashOkId);
    LayOut();
    return true;
}

void frmSplash::OnCommand(int id, int code, HWND) {
    if (id == kSplashOkId && code == BN_CLICKED) {
        cmdOK_Click();
    }
}

void frmSplash::OnDpiChanged(int dpi, const RECT& suggested) {
    dpi_ = dpi;
    Window::OnDpiChanged(dpi, suggested);
    LayOut();
}

void frmSplash::LayOut() {
    nameFont_ = CreateTextFont(dpi_, kNameHeight, FW_BOLD);
    taglineFont_ = CreateTextFont(dpi_, kTaglineHeight, FW_NORMAL);
    // The controls let go of the old font before it is deleted.
    UniqueFont controlFont = CreateTextFont(dpi_, 0, FW_NORMAL);
    for (HWND control : {lblVersion_, cmdOK}) {
        SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(controlFont.get()), TRUE);
    }
    controlFont_ = std::move(controlFont);
    const auto scale = [this](int pixels) { return ScaleForDpi(pixels, dpi_); };
    const int bandHeight = kClientHeight - kPictureHeight;
    MoveWindow(lblVersion_, scale(kBandMargin),
               scale(kPictureHeight + (bandHeight - kCaptionHeight) / 2), scale(200),
               scale(kCaptionHeight), TRUE);
    MoveWindow(cmdOK, scale(kClientWidth - kBandMargin - kButtonWidth),
               scale(kPictureHeight + (bandHeight - kButtonHeight) / 2), scale(kButtonWidth),
               scale(kButtonHeight), TRUE);
    InvalidateRect(hwnd(), nullptr, TRUE);
}

void frmSplash::Form_Paint() {
    const PaintDc paint(hwnd());
    const HDC dc = paint.get();
    const auto scale = [this](int pixels) { return ScaleForDpi(pixels, dpi_); };
    RECT client{};
    GetClientRect(hwnd(), &client);
    const RECT picture{0, 0, client.right, scale(kPictureHeight)};
    if (picture_) {
        BITMAP size{};
        GetObjectW(picture_.get(), sizeof(size), &size);
        const UniqueMemoryDC memory(CreateCompatibleDC(dc));
        const SelectedObject selected(memory.get(), picture_.get());
        SetStretchBltMode(dc, HALFTONE);
        SetBrushOrgEx(dc, 0, 0, nullptr);
        StretchBlt(dc, 0, 0, picture.right, picture.bottom, memory.get(), 0, 0, size.bmWidth,
                   size.bmHeight, SRCCOPY);
    } else {
        FillRect(dc, &picture, GetSysColorBrush(COLOR_HIGHLIGHT));
    }
    const RECT band{0, picture.bottom, client.right, client.bottom};
    FillRect(dc, &band, GetSysColorBrush(COLOR_BTNFACE));

    SetBkMode(dc, TRANSPARENT);
    const auto drawText = [&](const wchar_t* text, const RECT& at, HFONT font, COLORREF color) {
        RECT rect{scale(at.left), scale(at.top), scale(at.right), scale(at.bottom)};
        const SelectedObject selected(dc, font);
        SetTextColor(dc, color);
        DrawTextW(dc, text, -1, &rect, DT_LEFT | DT_BOTTOM | DT_SINGLELINE | DT_NOPREFIX);
    };
    drawText(L"Quorin", kNameRect, nameFont_.get(), kNameColor);
    drawText(L"Type a word, open anything.", kTaglineRect, taglineFont_.get(), kTaglineColor);
}

void frmSplash::cmdOK_Click() {
    Unload();
}

}  // namespace quorin
