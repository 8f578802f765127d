#include "index/FolderWalker.h"

#include <utility>

#include "index/NameRules.h"
#include "platform/Path.h"

namespace quorin {

FolderWalker::FolderWalker(WalkOptions options, FolderTable& folders, IndexItems& items)
    : options_(std::move(options)), folders_(folders), items_(items) {}

void FolderWalker::Walk(int32_t slot) {
    const std::string folder = folders_.Path(slot);
    subfolder_ = JoinPath(folder, "");
    const size_t nameAt = subfolder_.size();
    lister_.List(folder, options_.includeSystemFolders, [&](std::string_view name, bool isFolder) {
        if (isFolder) {
            subfolder_.resize(nameAt);
            AddFolder(subfolder_.append(name), name);
        } else if (PassesFileTypeFilter(name, options_.filter, options_.filterIsInclude)) {
            items_.Add(name, slot);
        }
    });
}

void FolderWalker::AddFolder(std::string_view path, std::string_view name) {
    if (name == "." || name == ".." || (options_.ignoreTempFolders && IsTempFolderName(name))) {
        return;
    }
    if (!folders_.Append(path)) {
        ++foldersLeftOut_;
    }
}

}  // namespace quorin
