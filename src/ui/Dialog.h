#pragma once

#include <windows.h>

#include "platform/WinHandles.h"
#include "ui/DialogItems.h"
#include "ui/Window.h"

namespace quorin {

// Base of the program's dialogs, each laid out by a DIALOGEX template of quorin.rc.
//
// The dialog manager gives them what a Windows user expects of a dialog: Tab and Shift+Tab,
// the arrow keys within a group, access keys, Enter for the default button and Escape for
// Cancel; both modal and modeless dialogs get their keys through the program's one message
// pump. The controls take the system's message font at the dialog's DPI, and the focus starts
// on the first control that takes it.
class Dialog : public Window, protected DialogItems {
  public:
    // Shows the dialog over `owner`, which stays disabled until it closes and is then enabled
    // and activated again. Returns the result given to EndDialog (IDOK, IDCANCEL).
    INT_PTR ShowModal(HWND owner);
    // Creates the dialog over `owner` and shows it; the call returns at once.
    void ShowModeless(HWND owner);
    bool IsModal() const { return modal_; }
    // The result given to EndDialog; IDCANCEL until then, and for a dialog closed any other way.
    INT_PTR Result() const { return result_; }

    // Keys a dialog handles before the dialog manager; see Window::TranslateKeys.
    static bool TranslateKeys(HWND active, const MSG& message);

  protected:
    explicit Dialog(int templateId) : templateId_(templateId) {}

    HWND ItemsParent() const override { return hwnd(); }

    // WM_INITDIALOG, after the font is set. True lets the focus go to the first control that
    // takes it; false when OnInit put the focus somewhere itself.
    virtual bool OnInit() { return true; }
    // The OK button or Enter, and the Cancel button, Escape or the close box. Both close the
    // dialog unless overridden.
    virtual void OnOk() { EndDialog(IDOK); }
    virtual void OnCancel() { EndDialog(IDCANCEL); }
    // Closes the dialog with a result: ends the modal loop, or destroys a modeless dialog.
    void EndDialog(INT_PTR result);

    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT DefaultMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnClose() override { OnCancel(); }

  private:
    static INT_PTR CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    static Dialog* FromDialog(HWND hwnd);

    void Make(HWND owner);
    void ApplyFont(int dpi);

    int templateId_;
    bool modal_ = false;
    bool ended_ = false;
    bool handled_ = false;
    INT_PTR result_ = IDCANCEL;
    UniqueFont font_;
};

}  // namespace quorin
