#pragma once

#include <windows.h>

#include <string_view>

namespace quorin {

// The animation a window plays while a build runs, "findfile.avi" from the program folder.
void PlayBuildAnimation(HWND animation, std::string_view programFolder);
// Closes the file, which stops the playing.
void StopBuildAnimation(HWND animation);

}  // namespace quorin
