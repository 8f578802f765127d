#pragma once

#include <windows.h>

namespace quorin {

inline constexpr int kOptionsGeneral = 0;
inline constexpr int kOptionsFileTypes = 1;
inline constexpr int kOptionsWords = 2;

// Opens the Options dialog at one of its pages.
class OptionsOpener {
  public:
    virtual ~OptionsOpener() = default;
    // Modeless, owned by the main window; a dialog already open comes to the front at the page.
    virtual void ShowOptions(int panel) = 0;
    // As ShowOptions at the General page, with the focus on "Index every folder".
    virtual void ShowAllFoldersOption() = 0;
    // Modal over `owner` (the first-run wizard); returns when the dialog has closed.
    virtual void ShowOptionsModal(HWND owner, int panel) = 0;
};

}  // namespace quorin
