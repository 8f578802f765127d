#pragma once

#include <string>
#include <string_view>

namespace quorin {

// The OS's character-by-character upper-case mapping, length-preserving. ToUpper hands it only
// text that is not pure ASCII.
std::wstring OsUpperCase(std::wstring_view text);

}  // namespace quorin
