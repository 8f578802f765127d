#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "index/FolderTable.h"
#include "index/IndexItems.h"
#include "platform/DirectoryListing.h"

namespace quorin {

// What a build indexes, taken from the engine's settings when the build starts.
struct WalkOptions {
    std::string filter;
    bool filterIsInclude = true;
    bool includeSystemFolders = true;
    bool ignoreTempFolders = true;
};

// Walks one folder of the table at a time: its subfolders join the end of the table (which is
// thus the queue of a breadth-first walk) and its files that pass the filter join the items.
class FolderWalker {
  public:
    FolderWalker(WalkOptions options, FolderTable& folders, IndexItems& items);

    // An unreadable folder adds nothing; subfolders beyond a fixed table's last slot are left
    // out and counted.
    void Walk(int32_t slot);

    // The folders left out so far, which were thus not walked either.
    int32_t FoldersLeftOut() const { return foldersLeftOut_; }

  private:
    void AddFolder(const std::string& parent, std::string_view name);

    WalkOptions options_;
    FolderTable& folders_;
    IndexItems& items_;
    FolderLister lister_;
    int32_t foldersLeftOut_ = 0;
};

}  // namespace quorin
