#include "platform/Path.h"

#include "platform/Text.h"

#include <windows.h>

namespace quorin {

std::string ExecutableFolder() {
    std::wstring buffer(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
        if (length == 0) {
            return ".";
        }
        if (length < buffer.size()) {
            buffer.resize(length);
            const std::string path = Narrow(buffer);
            return path.substr(0, path.rfind(kPathSeparator));
        }
        buffer.resize(buffer.size() * 2);
    }
}

std::string DefaultRoot() {
    return "C:";
}

}  // namespace quorin
