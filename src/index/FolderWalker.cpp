#include "index/FolderWalker.h"

#include <utility>

#include "index/NameRules.h"
#include "platform/Path.h"

namespace quorin {

FolderWalker::FolderWalker(WalkOptions options, FolderTable& folders, IndexItems& items)
    : options_(std::move(options)), folders_(folders), items_(items) {}

void FolderWalker::Walk(int32_t slot) {
    const std::string folder = folders_.Path(slot);
    lister_.List(folder, options_.includeSystemFolders, [&](std::string_view name, bool isFolder) {
        if (isFolder) {
            AddFolder(folder, name);
        } else if (PassesFileTypeFilter(name, options_.filter, options_.filterIsInclude)) {
            items_.Add(name, slot);
        }
    });
}

void FolderWalker::AddFolder(const std::string& parent, std::string_view name) {
    if (name == "." || name == ".." || (options_.ignoreTempFolders && IsTempFolderName(name))) {
        return;
    }
    if (!folders_.Append(JoinPath(parent, name))) {
        ++foldersLeftOut_;
    }
}

}  // namespace quorin
