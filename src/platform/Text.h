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

}  // namespace quorin
