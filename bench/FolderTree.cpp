#include "FolderTree.h"

#include <algorithm>
#include <cctype>

namespace quorin::bench {
namespace {

bool EqualNoCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return std::toupper(static_cast<unsigned char>(x)) ==
               std::toupper(static_cast<unsigned char>(y));
    });
}

}  // namespace

bool TakeUniqueName(std::vector<std::string>& taken, const std::string& name) {
    const bool clash = std::any_of(taken.begin(), taken.end(),
                                   [&](const std::string& t) { return EqualNoCase(t, name); });
    if (!clash) {
        taken.push_back(name);
    }
    return !clash;
}

FolderTree::FolderTree(std::string_view root, char separator, uint32_t folderCount,
                       NameGenerator& names, Random& random) {
    paths_.reserve(folderCount);
    paths_.emplace_back(root);
    for (size_t parent = 0; paths_.size() < folderCount; ++parent) {
        const bool lastInQueue = parent + 1 == paths_.size();
        uint32_t children = random.Below(7);
        if (lastInQueue && children == 0) {
            children = 1;  // the queue must not run dry before the tree is complete
        }
        std::vector<std::string> siblings;
        while (siblings.size() < children && paths_.size() < folderCount) {
            const std::string name = names.FolderName();
            if (TakeUniqueName(siblings, name)) {
                paths_.push_back(paths_[parent] + separator + name);
            }
        }
    }
}

}  // namespace quorin::bench
