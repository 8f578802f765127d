#include "support/FileMarks.h"

#include "platform/Text.h"

#include <windows.h>

namespace quorin {
namespace {

// Reads the attribute back: some file systems under Wine accept the call but keep nothing.
bool AddAttribute(const std::string& path, DWORD attribute) {
    const std::wstring widePath = Widen(path);
    const DWORD current = GetFileAttributesW(widePath.c_str());
    return current != INVALID_FILE_ATTRIBUTES &&
           SetFileAttributesW(widePath.c_str(), (current & ~FILE_ATTRIBUTE_NORMAL) | attribute) &&
           (GetFileAttributesW(widePath.c_str()) & attribute) != 0;
}

}  // namespace

bool MarkHidden(const std::string& path) {
    return AddAttribute(path, FILE_ATTRIBUTE_HIDDEN);
}

bool MarkSystem(const std::string& path) {
    return AddAttribute(path, FILE_ATTRIBUTE_SYSTEM);
}

}  // namespace quorin
