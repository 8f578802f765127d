#pragma once

#include <windows.h>

#include <shellapi.h>

#include <functional>
#include <string_view>
#include <utility>

#include "ui/main/TrayRecord.h"

namespace quorin {

// The program's one tray icon. The record is kept between calls, so that removing the icon and
// adding it again after Explorer restarts use what was last set. Results of the shell are not
// looked at: without a notification area the program runs on without an icon.
class clsSysTray {
  public:
    // How the shell is told of the icon; tests record the calls instead.
    using Notifier = std::function<void(DWORD message, NOTIFYICONDATAW& data)>;

    clsSysTray();
    explicit clsSysTray(Notifier notifier) : notifier_(std::move(notifier)) {}

    void CreateIcon(HWND hWnd, HICON hIcon, std::string_view Tip);
    void ChangeIcon(HWND hWnd, HICON hIcon, std::string_view Tip);
    void RemoveIcon();
    // Adds the kept icon again ("TaskbarCreated": Explorer has restarted).
    void RestoreIcon();

    const TrayRecord& Record() const { return record_; }

  private:
    void Notify(DWORD message) const;

    Notifier notifier_;
    TrayRecord record_;
};

}  // namespace quorin
