#include "platform/TextFile.h"

#include "platform/Errors.h"
#include "platform/FileSystem.h"
#include "platform/Text.h"

#include <algorithm>
#include <cstdio>
#include <random>

namespace quorin {
namespace {

constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";

[[noreturn]] void ThrowFileError(const std::string& path, std::string_view action,
                                 const std::string& reason) {
    throw FileError("The file \"" + path + "\" could not be " + std::string(action) + ": " +
                    reason + ".");
}

// A sibling of the target, so that the final rename never crosses a volume.
std::string TemporaryNameFor(const std::string& path) {
    char suffix[24];
    std::snprintf(suffix, sizeof suffix, ".%08x.tmp", std::random_device{}());
    return path + suffix;
}

}  // namespace

std::string ReadWholeFile(const std::string& path) {
    std::string bytes;
    const std::string reason = ReadFileBytes(path, bytes);
    if (!reason.empty()) {
        ThrowFileError(path, "read", reason);
    }
    return bytes;
}

void ReplaceFileWhole(const std::string& path, std::string_view content) {
    const std::string temporary = TemporaryNameFor(path);
    std::string reason = WriteNewFile(temporary, content);
    if (reason.empty()) {
        reason = MoveOver(temporary, path);
    }
    if (!reason.empty()) {
        RemoveFile(temporary);
        ThrowFileError(path, "saved", reason);
    }
}

TextFileReader::TextFileReader(const std::string& path) : data_(ReadWholeFile(path)) {
    if (data_.starts_with(kUtf8Bom)) {
        pos_ = kUtf8Bom.size();
    }
}

bool TextFileReader::ReadLine(std::string& line) {
    if (AtEnd()) {
        return false;
    }
    const size_t end = std::min(data_.find_first_of("\r\n", pos_), data_.size());
    line.assign(data_, pos_, end - pos_);
    pos_ = end + 1;
    if (data_.compare(end, 2, "\r\n") == 0) {
        ++pos_;
    }
    if (!IsValidUtf8(line)) {
        line = AnsiToUtf8(line);
    }
    return true;
}

}  // namespace quorin
