#pragma once

#include <string_view>

namespace quorin {

inline constexpr int kShowNormal = 5;  // the plain show command of a shell open

// Opens a file or web page with its associated program (the shell's "open" verb).
class Shell {
  public:
    virtual ~Shell() = default;
    virtual void Open(std::string_view file, std::string_view parameters,
                      std::string_view workingFolder, int showCommand) = 0;
};

}  // namespace quorin
