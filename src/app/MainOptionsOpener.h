#pragma once

#include "ui/main/OptionsOpener.h"

namespace quorin {

// Until the Options dialog exists, its three links open nothing.
class MainOptionsOpener final : public OptionsOpener {
  public:
    void ShowOptions(int) override {}
    void ShowOptionsModal(HWND, int) override {}
};

}  // namespace quorin
