#include "platform/Path.h"

#include "platform/Text.h"

#include <windows.h>

namespace quorin {

std::string ExecutablePath() {
    std::wstring buffer(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
        if (length == 0) {
            return {};
        }
        if (length < buffer.size()) {
            buffer.resize(length);
            return Narrow(buffer);
        }
        buffer.resize(buffer.size() * 2);
    }
}

std::string ExecutableFolder() {
    const std::string path = ExecutablePath();
    if (path.empty()) {
        return ".";
    }
    return path.substr(0, path.rfind(kPathSeparator));
}

std::string DefaultRoot() {
    return "C:";
}

}  // namespace quorin
