#pragma once

#include "platform/Shell.h"

namespace quorin {

// The real Shell: ShellExecuteW with the "open" verb, owned by the desktop window. What the
// shell returns is not looked at; the shell reports its own failures.
class ShellExecuteShell final : public Shell {
  public:
    void Open(std::string_view file, std::string_view parameters, std::string_view workingFolder,
              int showCommand) override;
};

}  // namespace quorin
