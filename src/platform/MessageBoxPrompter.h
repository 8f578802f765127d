#pragma once

#include "platform/Prompter.h"

#include <windows.h>

namespace quorin {

// The real Prompter: a modal MessageBoxW owned by the window the caller names.
class MessageBoxPrompter final : public Prompter {
  public:
    explicit MessageBoxPrompter(HWND owner = nullptr) : owner_(owner) {}

    void SetOwner(HWND owner) { owner_ = owner; }

    PromptAnswer Ask(std::string_view title, std::string_view text, PromptButtons buttons,
                     PromptIcon icon) override;

  private:
    HWND owner_;
};

}  // namespace quorin
