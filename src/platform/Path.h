#pragma once

#include <string>
#include <string_view>

namespace quorin {

#ifdef _WIN32
inline constexpr char kPathSeparator = '\\';
#else
inline constexpr char kPathSeparator = '/';
#endif

// folder + separator + name, the one way every full path is formed.
std::string JoinPath(std::string_view folder, std::string_view name);

// The folder that holds the running executable, without a trailing separator.
std::string ExecutableFolder();

#ifdef _WIN32
// The full path of the running executable; empty when Windows cannot tell.
std::string ExecutablePath();
#endif

// The root indexed when no drives are configured: "C:" on Windows, the home folder on POSIX.
std::string DefaultRoot();

}  // namespace quorin
