#pragma once

#include <string>
#include <string_view>

namespace quorin {

bool FileExists(const std::string& path);

// The whole file's bytes. Throws FileError naming the file when it cannot be read.
std::string ReadWholeFile(const std::string& path);

// Replaces `path` with `content` in one step: a temporary file in the same folder is written,
// flushed and renamed over the target, so a crash or a full disk leaves the old file whole.
// Throws FileError naming the file on any failure.
void ReplaceFileWhole(const std::string& path, std::string_view content);

// Reads a text file line by line. CR LF, LF or a lone CR ends a line; the end of the file ends
// the last line. A line that is not valid UTF-8 is decoded from the ANSI code page.
class TextFileReader {
public:
    explicit TextFileReader(const std::string& path);  // throws FileError

    // False at the end of the file.
    bool ReadLine(std::string& line);
    bool AtEnd() const { return pos_ >= data_.size(); }

private:
    std::string data_;
    size_t pos_ = 0;
};

}  // namespace quorin
