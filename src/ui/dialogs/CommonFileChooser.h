#pragma once

#include "ui/dialogs/FileChooser.h"

namespace quorin {

// The system's file-open dialog.
class CommonFileChooser final : public FileChooser {
  public:
    std::string Choose(HWND owner, std::string_view filter, const std::string& fileName) override;
};

}  // namespace quorin
