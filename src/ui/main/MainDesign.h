#pragma once

#include <windows.h>

#include <span>
#include <string_view>

namespace quorin {

class ctlLinkLabel;
class frmMain;

// The main window's design: which control each panel holds, with its text and its place in
// twips. The word box, with its own behaviour, is made by the window itself.
struct MainDesign {
    struct Control {
        HWND frmMain::*member;  // none where the window never touches the control
        int panel;
        const wchar_t* className;
        std::string_view text;
        DWORD style;
        int id;
        RECT twips;  // left, top, width, height
    };
    struct Link {
        ctlLinkLabel* frmMain::*member;  // none where the window only hears its clicks
        int panel;
        int id;
        std::string_view caption;
        int left;
        int top;
    };

    static std::span<const Control> Controls();
    static std::span<const Link> Links();
};

}  // namespace quorin
