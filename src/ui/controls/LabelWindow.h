#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "ui/Window.h"
#include "ui/controls/LabelAccessible.h"
#include "ui/controls/LabelFonts.h"
#include "ui/controls/LabelModel.h"
#include "ui/controls/OleColor.h"

namespace quorin {

// A label's Click reaches its parent as WM_COMMAND: LOWORD(wParam) is the control's id,
// HIWORD(wParam) is kLabelClick and lParam is the control's window. kLabelClick is 0, the value
// of BN_CLICKED, so that dialog code can treat a label like a button. The parent's handler may
// destroy the label.
inline constexpr WORD kLabelClick = 0;

// The caption of a label created without one (a null window name).
inline constexpr std::string_view kDefaultCaption = "LinkLabel";

// What a label paints with; the concrete control chooses. The caption is in `text` while the
// label is enabled and in `disabledText` while it is not.
struct LabelLook {
    OleColor text;
    OleColor disabledText;
    OleColor back;
    bool bold;
};

// What the tab and link labels share. The caption is the window text (WM_SETTEXT and
// WM_GETTEXT work as for any control). Enabled is the window's enabled state: a disabled label
// draws its caption in its look's disabled colour and ignores the mouse. The font is the one the
// parent sends with WM_SETFONT, or else the system message font. Any mouse button presses.
// A label made with WS_TABSTOP is reached with Tab like a button: it shows a focus rectangle
// while it has the focus, and Enter or Space clicks it.
//
// For screen readers a label answers WM_GETOBJECT for its client area with its own
// IAccessible (see LabelAccessible), and raises the focus and name-change WinEvents.
class LabelWindow : public Window {
  public:
    ~LabelWindow() override;

    std::string Caption() const;
    void SetCaption(std::string_view caption);
    bool Enabled() const;
    void SetEnabled(bool enabled);
    bool Selected() const { return model_.Selected(); }

    // The object WM_GETOBJECT hands out, made on first use; the label keeps a reference.
    IAccessible* Accessible();
    // A click as by Enter, made once the caller has returned (a reader's call must not wait
    // for what the click opens).
    void DoDefaultAction();

  protected:
    LabelWindow() = default;

    // A visible child label of the registered class `atom` at (x, y) in pixels; its size comes
    // from UserControl_Resize. Throws Error on failure.
    static HWND CreateLabel(ATOM atom, HWND parent, int id, std::string_view caption, int x, int y);

    // The label behind a window of the class `atom`, or nullptr for any other window.
    template <typename T>
    static T* Bound(HWND window, ATOM atom) {
        if (window == nullptr || GetClassLongPtrW(window, GCW_ATOM) != atom) {
            return nullptr;
        }
        return static_cast<T*>(FromHandle(window));
    }

    virtual LabelLook Look() const = 0;
    virtual LabelRole Role() const = 0;
    virtual bool Inside(int x, int y, int width, int height) const = 0;
    // Sizes the control from its caption: whenever it is sized, at creation and when its font
    // changes.
    virtual void UserControl_Resize() = 0;
    virtual void CaptionChanged() {}
    // A release completed a press; runs before the parent is told.
    virtual void Clicked() {}

    SIZE MeasureText(std::string_view text, bool bold);
    void ResizeTo(SIZE size);
    void Repaint();
    // Tells screen readers about the label's client object (EVENT_OBJECT_...).
    void Announce(DWORD event);
    LabelModel& Model() { return model_; }
    const LabelModel& Model() const { return model_; }

    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool OnCreate(const CREATESTRUCTW& create) override;
    void OnSize(UINT, int, int) override { UserControl_Resize(); }

  private:
    void OnSetFont(HFONT font);
    void OnMouse(UINT message, LPARAM lParam);
    void OnKeyDown(WPARAM key, LPARAM flags);
    void OnCaptureChanged(HWND newOwner);
    void OnDisabled();
    void Click();
    void NotifyClick();
    void Paint(HDC dc);

    HFONT font_ = nullptr;  // the parent's; not ours to delete
    LabelFonts fonts_;
    LabelModel model_;
    Microsoft::WRL::ComPtr<LabelAccessible> accessible_;
};

}  // namespace quorin
