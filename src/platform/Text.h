#pragma once

#include <string>
#include <string_view>

namespace quorin {

// UTF-8 inside the program; wide strings (UTF-16 on Windows) only at the OS boundary.
std::wstring Widen(std::string_view utf8);
std::string Narrow(std::wstring_view wide);

bool IsValidUtf8(std::string_view bytes);

// Decodes bytes of the system's ANSI code page (Windows-1252 on POSIX) to UTF-8, so that
// files written by older installations keep their names.
std::string AnsiToUtf8(std::string_view bytes);

// Unicode-aware upper case of a UTF-8 text, character by character ("é" gives "É").
std::string ToUpper(std::string_view utf8);

// The text without the BLANKS at either end. Inline and without find_first_not_of, since every
// record number of "index.txt" passes here.
inline std::string_view TrimBlanks(std::string_view text, std::string_view blanks = " \t") {
    while (!text.empty() && blanks.find(text.front()) != std::string_view::npos) {
        text.remove_prefix(1);
    }
    while (!text.empty() && blanks.find(text.back()) != std::string_view::npos) {
        text.remove_suffix(1);
    }
    return text;
}

}  // namespace quorin
