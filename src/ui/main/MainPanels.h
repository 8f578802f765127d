#pragma once

#include <windows.h>

#include <string_view>
#include <vector>

#include "ui/controls/ctlLinkLabel.h"

namespace quorin {

// The main window's stack of same-sized panels beneath the tab row, exactly one shown at a
// time, and the controls on them, each placed in twips and placed again when the DPI changes.
// What the controls tell their panel goes on to the main window.
class MainPanels {
  public:
    // Creates `count` panels in the window, the first one shown; `firstId` + i is panel i's id.
    void Create(HWND window, int count, int firstId);

    HWND Panel(int panel) const { return panels_.at(static_cast<size_t>(panel)); }

    // A control on a panel (a width of 0 keeps the control's own size).
    HWND AddControl(int panel, const wchar_t* className, std::string_view text, DWORD style, int id,
                    RECT twips);
    ctlLinkLabel* AddLink(int panel, int id, std::string_view caption, int left, int top);

    // Every control at its place in twips at the DPI.
    void PlaceControls(int dpi) const;
    // The lowest bottom edge of the placed controls, in pixels from the panels' top.
    int ContentBottom() const;
    // The panels at their place in pixels.
    void PlacePanels(int top, int width, int height) const;
    void Show(int panel) const;
    // A control by its id, on whichever panel it lies.
    HWND Control(int id) const;

  private:
    struct Placement {
        HWND control;
        RECT twips;
    };

    std::vector<HWND> panels_;
    std::vector<Placement> placements_;
};

}  // namespace quorin
