#pragma once

#include "platform/FileSystem.h"

#include <bit>
#include <string>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace quorin {

bool FileExists(const std::string& path);

// The whole file's bytes. Throws FileError naming the file when it cannot be read.
std::string ReadWholeFile(const std::string& path);

// Replaces `path` with `content` in one step: a temporary file in the same folder is written,
// flushed and renamed over the target, so a crash or a full disk leaves the old file whole.
// Throws FileError naming the file on any failure.
void ReplaceFileWhole(const std::string& path, std::string_view content);

struct LineScan {
    const char* end;  // the CR or LF that ends the line, or `last`
    bool ascii;       // no byte of the line is above 0x7F, so it needs no UTF-8 check
};

// Finds the end of the line that begins at `from`, 16 bytes at a time: lines are short and a
// file may hold millions. Inline, as a load calls it once a record.
inline LineScan ScanLine(const char* from, const char* last) {
    const char* p = from;
    unsigned highBits = 0;
#if defined(__SSE2__)
    const __m128i cr = _mm_set1_epi8('\r');
    const __m128i lf = _mm_set1_epi8('\n');
    for (; last - p >= 16; p += 16) {
        const __m128i chunk = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        const auto breaks = static_cast<unsigned>(
            _mm_movemask_epi8(_mm_or_si128(_mm_cmpeq_epi8(chunk, cr), _mm_cmpeq_epi8(chunk, lf))));
        const auto high = static_cast<unsigned>(_mm_movemask_epi8(chunk));
        if (breaks != 0) {
            const int at = std::countr_zero(breaks);
            highBits |= high & ((1u << at) - 1);
            return LineScan{p + at, highBits == 0};
        }
        highBits |= high;
    }
#endif
    for (; p < last && *p != '\r' && *p != '\n'; ++p) {
        highBits |= static_cast<unsigned char>(*p) & 0x80u;
    }
    return LineScan{p, highBits == 0};
}

// Reads a text file line by line. CR LF, LF or a lone CR ends a line; the end of the file ends
// the last line. A line that is not valid UTF-8 is decoded from the ANSI code page. The file is
// read in pieces, so that a file of a million lines never sits in memory whole.
class TextFileReader {
  public:
    explicit TextFileReader(const std::string& path);  // throws FileError

    // False at the end of the file. Both throw FileError when the file cannot be read further.
    bool ReadLine(std::string& line);
    // The same without a copy; the view lasts until the next call.
    bool ReadLine(std::string_view& line);
    bool AtEnd();

    // The bytes read and not yet handed out, for a caller that takes lines of a shape it knows
    // straight from them; Skip hands out the first `count` of them as lines would.
    std::string_view Ahead() const { return std::string_view(buffer_).substr(pos_, end_ - pos_); }
    void Skip(size_t count) { pos_ += count; }

  private:
    void ReadMore();
    void TakeLine(size_t lineEnd, bool ascii, std::string_view& line);

    std::string path_;
    InputFile file_;
    std::string buffer_;  // the bytes from pos_ to end_ are read and not yet handed out
    size_t pos_ = 0;
    size_t end_ = 0;
    bool fileEnded_ = false;
    std::string decoded_;  // the last line, when it had to be decoded from the ANSI code page
};

}  // namespace quorin
