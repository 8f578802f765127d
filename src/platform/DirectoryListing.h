#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace quorin {

using EntryCallback = std::function<void(std::string_view name, bool isFolder)>;

// Lists the folders and ordinary files directly inside `folder` in the file system's own order,
// plus entries with the system attribute when includeSystem is set. Hidden entries are never
// listed (on POSIX: names that begin with "."). An unreadable folder lists nothing. On Windows
// the listing includes "." and "..", as the OS returns them.
void ListFolder(const std::string& folder, bool includeSystem, const EntryCallback& onEntry);

// Lists one folder after another as ListFolder does, for one breadth-first walk. On POSIX a
// folder listed with subfolders stays open until they come (while half the process's
// descriptors allow), so that the walk opens each folder once, by its name from its parent,
// rather than by a path the kernel looks up again from the root. A folder moved during the
// walk may thus still be listed at its old place, as a walk that had already read it would.
class FolderLister {
  public:
    FolderLister();
    ~FolderLister();
    FolderLister(const FolderLister&) = delete;
    FolderLister& operator=(const FolderLister&) = delete;

    void List(const std::string& folder, bool includeSystem, const EntryCallback& onEntry);

  private:
    struct OpenParents;
    std::unique_ptr<OpenParents> parents_;
};

// Whether a listing of exactly this name, wildcards allowed, finds a normal file: no folder and
// no hidden or system entry.
bool AnyNormalFileMatches(const std::string& pattern);

}  // namespace quorin
