#include "platform/ShellExecuteShell.h"

#include "platform/Text.h"

#include <windows.h>

#include <shellapi.h>

namespace quorin {

void ShellExecuteShell::Open(std::string_view file, std::string_view parameters,
                             std::string_view workingFolder, int showCommand) {
    ShellExecuteW(GetDesktopWindow(), L"open", Widen(file).c_str(), Widen(parameters).c_str(),
                  Widen(workingFolder).c_str(), showCommand);
}

}  // namespace quorin
