#pragma once

#include <windows.h>

#include <optional>

namespace quorin {

// Ctrl+Tab and Ctrl+Shift+Tab, as tabbed windows take them to change pages: the page that
// follows `current` of `count` pages in the key's direction, round from the last to the first,
// or nullopt for any other key.
std::optional<int> PageAfterCtrlTab(const MSG& message, int current, int count);

}  // namespace quorin
