#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quorin {

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
