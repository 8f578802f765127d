#include "platform/TextFile.h"

#include "platform/Errors.h"
#include "platform/FileSystem.h"
#include "platform/Text.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <random>

namespace quorin {
namespace {

constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";
// Large enough that reading costs few calls, small enough to stay in the cache.
constexpr size_t kPieceBytes = 256 * 1024;

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

TextFileReader::TextFileReader(const std::string& path) : path_(path), buffer_(kPieceBytes, '\0') {
    const std::string reason = file_.Open(path);
    if (!reason.empty()) {
        ThrowFileError(path, "read", reason);
    }
    ReadMore();
    if (std::string_view(buffer_).substr(0, end_).starts_with(kUtf8Bom)) {
        pos_ = kUtf8Bom.size();
    }
}

bool TextFileReader::ReadLine(std::string& line) {
    std::string_view view;
    if (!ReadLine(view)) {
        return false;
    }
    line.assign(view);
    return true;
}

bool TextFileReader::ReadLine(std::string_view& line) {
    for (;;) {
        const LineScan scan = ScanLine(buffer_.data() + pos_, buffer_.data() + end_);
        const auto lineEnd = static_cast<size_t>(scan.end - buffer_.data());
        // A CR as the last byte read may be the first half of a CR LF.
        const bool ended = lineEnd < end_ && (lineEnd + 1 < end_ || buffer_[lineEnd] == '\n');
        if (ended || fileEnded_) {
            if (pos_ == end_) {
                return false;
            }
            TakeLine(lineEnd, scan.ascii, line);
            return true;
        }
        ReadMore();
    }
}

bool TextFileReader::AtEnd() {
    while (pos_ == end_ && !fileEnded_) {
        ReadMore();
    }
    return pos_ == end_;
}

// Moves the bytes not yet handed out to the front and reads more after them; a line longer than
// the buffer makes it grow.
void TextFileReader::ReadMore() {
    std::memmove(buffer_.data(), buffer_.data() + pos_, end_ - pos_);
    end_ -= pos_;
    pos_ = 0;
    if (end_ == buffer_.size()) {
        buffer_.resize(buffer_.size() * 2);
    }
    size_t count = 0;
    const std::string reason = file_.Read(buffer_.data() + end_, buffer_.size() - end_, count);
    if (!reason.empty()) {
        ThrowFileError(path_, "read", reason);
    }
    end_ += count;
    fileEnded_ = count == 0;
}

void TextFileReader::TakeLine(size_t lineEnd, bool ascii, std::string_view& line) {
    line = std::string_view(buffer_).substr(pos_, lineEnd - pos_);
    pos_ = std::min(lineEnd + 1, end_);
    if (lineEnd + 1 < end_ && buffer_[lineEnd] == '\r' && buffer_[lineEnd + 1] == '\n') {
        ++pos_;
    }
    if (!ascii && !IsValidUtf8(line)) {
        decoded_ = AnsiToUtf8(line);
        line = decoded_;
    }
}

}  // namespace quorin
