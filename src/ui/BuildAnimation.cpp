#include "ui/BuildAnimation.h"

#include <commctrl.h>

#include "platform/Path.h"
#include "platform/Text.h"

namespace quorin {

void PlayBuildAnimation(HWND animation, std::string_view programFolder) {
    const std::wstring file = Widen(JoinPath(programFolder, "findfile.avi"));
    SendMessageW(animation, ACM_OPENW, 0, reinterpret_cast<LPARAM>(file.c_str()));
}

void StopBuildAnimation(HWND animation) {
    SendMessageW(animation, ACM_OPENW, 0, 0);
}

}  // namespace quorin
