#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace quorin {

// The common file-open dialog as the dialogs use it, so that tests can answer it.
class FileChooser {
  public:
    virtual ~FileChooser() = default;

    // Shows the dialog over `owner`, filtered by `filter` ("All files (*.*)|*.*") and starting at
    // `fileName`. Returns the dialog's file name afterwards: the chosen file, or `fileName` again
    // when the user cancels.
    virtual std::string Choose(HWND owner, std::string_view filter,
                               const std::string& fileName) = 0;
};

}  // namespace quorin
