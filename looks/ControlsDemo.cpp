#include <windows.h>

#include <array>
#include <string_view>
#include <vector>

#include "platform/WinHandles.h"
#include "ui/Dpi.h"
#include "ui/MessagePump.h"
#include "ui/PaintDc.h"
#include "ui/Window.h"
#include "ui/WindowClass.h"
#include "ui/controls/ctlLinkLabel.h"
#include "ui/controls/ctlTabLabel.h"

namespace quorin {
namespace {

constexpr std::array<std::string_view, 5> kTabCaptions{"Go", "Index", "Options", "Help", "Exit"};

struct DemoLink {
    int panel;
    std::string_view caption;
    bool enabled;
};

constexpr std::array<DemoLink, 8> kLinks{{{1, "Update Index Now", true},
                                          {2, "General Options", true},
                                          {2, "Change file types that are indexed", true},
                                          {2, "Add/delete assigned words", true},
                                          {2, "Cancel", false},
                                          {3, "Click here for help", true},
                                          {3, "Quorin", true},
                                          {3, "Veltaro, Inc.", true}}};

// A main-window-like frame: the tab row along the top and a panel of links per tab.
class DemoWindow final : public Window {
  public:
    DemoWindow() {
        static const ATOM atom = RegisterWindowClass({.name = L"QuorinControlsDemo"});
        Create(MAKEINTATOM(atom),
               {.title = "Quorin",
                .style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_VISIBLE,
                .x = 60,
                .y = 60,
                .width = Px(5400),
                .height = Px(2100)});
    }

  private:
    int Px(int twips) const { return TwipsToPixels(twips, WindowDpi(hwnd())); }

    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
            case WM_CREATE:
                Form_Load();
                return 0;
            case WM_COMMAND:
                if (HIWORD(wParam) == kLabelClick && LOWORD(wParam) < kTabCaptions.size()) {
                    tabLabel_Click(LOWORD(wParam));
                }
                return 0;
            case WM_PAINT:
                PaintTabRow();
                return 0;
            case WM_DESTROY:
                PostQuitMessage(0);
                return 0;
            default:
                return Window::HandleMessage(message, wParam, lParam);
        }
    }

    void Form_Load() {
        // The form hands its font to its controls.
        const LOGFONTW description = MessageFont(WindowDpi(hwnd()));
        font_.reset(CreateFontIndirectW(&description));

        int left = 0;
        for (size_t i = 0; i < kTabCaptions.size(); ++i) {
            tabLabel_[i] =
                &ctlTabLabel::Create(hwnd(), static_cast<int>(i), kTabCaptions[i], left, 0);
            SetFont(tabLabel_[i]->hwnd());
            left += TabRect(i).right - TabRect(i).left;
        }
        RECT frame{};
        GetWindowRect(hwnd(), &frame);
        const int width = TabRect(4).right - TabRect(4).left;
        SetWindowPos(tabLabel_[4]->hwnd(), nullptr, frame.right - frame.left - width - Px(60), 0, 0,
                     0, SWP_NOSIZE | SWP_NOZORDER);
        tabLabel_[0]->SetSelected(true);

        std::array<int, kTabCaptions.size()> rows{};
        for (const DemoLink& link : kLinks) {
            ctlLinkLabel& label = ctlLinkLabel::Create(hwnd(), 100, link.caption, Px(240),
                                                       Px(480) + rows[link.panel]++ * Px(300));
            SetFont(label.hwnd());
            label.SetEnabled(link.enabled);
            links_.push_back({link.panel, &label});
        }
        ShowPanel();
    }

    void SetFont(HWND control) const {
        SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font_.get()), FALSE);
    }

    void tabLabel_Click(int index) {
        currentTab_ = index;
        ShowPanel();
        if (index == 4) {
            DestroyWindow(hwnd());
        }
    }

    void ShowPanel() {
        for (const auto& [panel, link] : links_) {
            ShowWindow(link->hwnd(), panel == currentTab_ ? SW_SHOW : SW_HIDE);
        }
        InvalidateRect(hwnd(), nullptr, TRUE);
    }

    RECT TabRect(size_t index) const {
        RECT rect{};
        GetWindowRect(tabLabel_[index]->hwnd(), &rect);
        return rect;
    }

    // The strip behind the tabs, so that the row reads as one bar from which the selected tab
    // stands out.
    void PaintTabRow() {
        const PaintDc dc(hwnd());
        RECT strip{};
        GetClientRect(hwnd(), &strip);
        strip.bottom = TabRect(0).bottom - TabRect(0).top;
        FillRect(dc.get(), &strip, GetSysColorBrush(COLOR_BTNSHADOW));
    }

    UniqueFont font_;
    std::array<ctlTabLabel*, kTabCaptions.size()> tabLabel_{};
    struct PanelLink {
        int panel;
        ctlLinkLabel* link;
    };
    std::vector<PanelLink> links_;
    int currentTab_ = 0;
};

}  // namespace
}  // namespace quorin

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    const quorin::DemoWindow window;
    return quorin::MessagePump::Run();
}
