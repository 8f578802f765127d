#include "platform/FileSystem.h"

#include "platform/OsError.h"
#include "platform/Text.h"
#include "platform/TextFile.h"
#include "platform/WinHandles.h"

#include <algorithm>

namespace quorin {
namespace {

// ReadFile and WriteFile move at most a DWORD's worth per call.
constexpr size_t kChunk = 1 << 30;

std::string WriteAll(HANDLE file, std::string_view content) {
    while (!content.empty()) {
        DWORD written = 0;
        const auto size = static_cast<DWORD>(std::min(content.size(), kChunk));
        if (!WriteFile(file, content.data(), size, &written, nullptr)) {
            return LastOsErrorText();
        }
        content.remove_prefix(written);
    }
    return {};
}

HANDLE FileHandle(std::intptr_t handle) {
    return reinterpret_cast<HANDLE>(handle);
}

}  // namespace

void InputFileTraits::Close(Handle handle) {
    CloseHandle(FileHandle(handle));
}

std::string InputFile::Open(const std::string& path) {
    const HANDLE file =
        CreateFileW(Widen(path).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                    OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return LastOsErrorText();
    }
    handle_.reset(reinterpret_cast<std::intptr_t>(file));
    return {};
}

std::string InputFile::Read(char* buffer, size_t size, size_t& count) {
    DWORD got = 0;
    if (!ReadFile(FileHandle(handle_.get()), buffer, static_cast<DWORD>(std::min(size, kChunk)),
                  &got, nullptr)) {
        return LastOsErrorText();
    }
    count = got;
    return {};
}

bool FileExists(const std::string& path) {
    const DWORD attributes = GetFileAttributesW(Widen(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

std::string ReadFileBytes(const std::string& path, std::string& bytes) {
    const UniqueFileHandle file(CreateFileW(Widen(path).c_str(), GENERIC_READ,
                                            FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                            OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    LARGE_INTEGER size{};
    if (!file || !GetFileSizeEx(file.get(), &size)) {
        return LastOsErrorText();
    }
    bytes.assign(static_cast<size_t>(size.QuadPart), '\0');
    size_t filled = 0;
    while (filled < bytes.size()) {
        DWORD count = 0;
        const auto wanted = static_cast<DWORD>(std::min(bytes.size() - filled, kChunk));
        if (!ReadFile(file.get(), bytes.data() + filled, wanted, &count, nullptr)) {
            return LastOsErrorText();
        }
        if (count == 0) {
            break;  // the file shrank while we read it
        }
        filled += count;
    }
    bytes.resize(filled);
    return {};
}

std::string WriteNewFile(const std::string& path, std::string_view content) {
    const UniqueFileHandle file(CreateFileW(Widen(path).c_str(), GENERIC_WRITE, 0, nullptr,
                                            CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) {
        return LastOsErrorText();
    }
    std::string reason = WriteAll(file.get(), content);
    if (reason.empty() && !FlushFileBuffers(file.get())) {
        reason = LastOsErrorText();
    }
    return reason;
}

std::string MoveOver(const std::string& from, const std::string& to) {
    if (!MoveFileExW(Widen(from).c_str(), Widen(to).c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        return LastOsErrorText();
    }
    return {};
}

void RemoveFile(const std::string& path) noexcept {
    DeleteFileW(Widen(path).c_str());
}

}  // namespace quorin
