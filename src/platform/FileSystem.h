#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "platform/UniqueHandle.h"

namespace quorin {

struct InputFileTraits {
    using Handle = std::intptr_t;  // a file descriptor on POSIX, a HANDLE on Windows
    static constexpr Handle None() { return -1; }
    static void Close(Handle handle);
};

// A file read from front to back in pieces, so that a large file never sits in memory whole.
class InputFile {
  public:
    // Both give the OS's reason for a failure, or an empty string on success.
    std::string Open(const std::string& path);
    // Reads up to `size` bytes; `count` is 0 at the end of the file.
    std::string Read(char* buffer, size_t size, size_t& count);

  private:
    UniqueHandle<InputFileTraits> handle_;
};

// The OS file operations under TextFile.h. Those that can fail return the OS's reason for the
// failure, or an empty string on success, so that the caller words the error for its file.

std::string ReadFileBytes(const std::string& path, std::string& bytes);

// Creates `path`, which must not exist yet, writes `content` and flushes it to the disk.
std::string WriteNewFile(const std::string& path, std::string_view content);

// Renames `from` over `to` in one step and makes the rename itself durable.
std::string MoveOver(const std::string& from, const std::string& to);

void RemoveFile(const std::string& path) noexcept;

// std::filesystem paths from and to our UTF-8 strings, the same on both platforms.
inline std::filesystem::path FsPath(std::string_view utf8) {
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

inline std::string Utf8Path(const std::filesystem::path& path) {
    const std::u8string utf8 = path.u8string();
    return std::string(utf8.begin(), utf8.end());
}

}  // namespace quorin
