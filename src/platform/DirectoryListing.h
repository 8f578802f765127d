#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace quorin {

using EntryCallback = std::function<void(std::string_view name, bool isFolder)>;

// Lists the folders and ordinary files directly inside `folder` in the file system's own order,
// plus entries with the system attribute when includeSystem is set. Hidden entries are never
// listed (on POSIX: names that begin with "."). An unreadable folder lists nothing. On Windows
// the listing includes "." and "..", as the OS returns them.
void ListFolder(const std::string& folder, bool includeSystem, const EntryCallback& onEntry);

// Whether a listing of exactly this name, wildcards allowed, finds a normal file: no folder and
// no hidden or system entry.
bool AnyNormalFileMatches(const std::string& pattern);

}  // namespace quorin
