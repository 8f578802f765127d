#pragma once

#include <windows.h>

#include "platform/WinHandles.h"
#include "ui/Window.h"

namespace quorin {

inline constexpr wchar_t kSplashClass[] = L"QuorinSplash";
inline constexpr int kSplashOkId = IDOK;
inline constexpr int kSplashVersionId = 100;

// The splash window of the start-up: the program's picture and name, the version caption and
// an OK button that closes it. Start-up shows it while it works and unloads it afterwards.
class frmSplash final : public Window {
  public:
    frmSplash();

    // Shows the window centred on the main screen, modeless, and paints it at once, since
    // start-up keeps the thread busy and no paint message would be handled for a while.
    void Show();
    // Removes the window; nothing happens when it is already gone.
    void Unload();

  protected:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool OnCreate(const CREATESTRUCTW& create) override;
    void OnCommand(int id, int code, HWND control) override;
    void OnDpiChanged(int dpi, const RECT& suggested) override;

  private:
    void Form_Paint();
    void LayOut();
    void cmdOK_Click();

    int dpi_ = 96;
    UniqueBitmap picture_;
    UniqueFont nameFont_;
    UniqueFont taglineFont_;
    UniqueFont controlFont_;
    HWND lblVersion_ = nullptr;
    HWND cmdOK = nullptr;
};

}  // namespace quorin
