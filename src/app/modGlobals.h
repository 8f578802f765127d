#pragma once

#include <windows.h>

#include <memory>
#include <optional>

#include "index/clsIndex.h"

namespace quorin {

// The one index engine of the process, made the first time any code touches it, so that its
// settings, index and words are read only then; a bad setting or file throws from Get.
class LazyIndex {
  public:
    explicit LazyIndex(IndexServices services) : services_(std::move(services)) {}

    clsIndex& Get();
    bool Exists() const { return index_ != nullptr; }
    void Release() { index_.reset(); }

  private:
    IndexServices services_;
    std::unique_ptr<clsIndex> index_;
};

// True while the first-run wizard is open; the wizard sets and clears it.
bool& WizardActive();

// Focus colours of text fields: tooltip colours and the whole text selected while the field
// has the focus, window colours otherwise. A combo box counts with its edit field.
void HighlightControl(HWND control);
void UnhighlightControl(HWND control);

// For WM_CTLCOLOREDIT of a parent: sets the field's colours and returns its brush, or nullptr
// for a field that is not highlighted (the default colours then apply).
HBRUSH FocusColors(HWND field, HDC dc);

}  // namespace quorin
