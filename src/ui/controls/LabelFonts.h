#pragma once

#include <windows.h>

#include <array>

#include "platform/WinHandles.h"

namespace quorin {

// The faces a label draws its caption in (bold or not, underlined or not), all made from one
// base font, each created when first needed.
class LabelFonts {
  public:
    void Reset(const LOGFONTW& base);
    HFONT Get(bool bold, bool underline);

  private:
    LOGFONTW base_{};
    std::array<UniqueFont, 4> faces_;
};

}  // namespace quorin
