#include "platform/DirectoryListing.h"

#include "platform/Path.h"
#include "platform/Text.h"
#include "platform/WinHandles.h"

namespace quorin {
namespace {

bool IsListed(DWORD attributes, bool includeSystem) {
    if ((attributes & FILE_ATTRIBUTE_HIDDEN) != 0) {
        return false;
    }
    return includeSystem || (attributes & FILE_ATTRIBUTE_SYSTEM) == 0;
}

}  // namespace

void ListFolder(const std::string& folder, bool includeSystem, const EntryCallback& onEntry) {
    WIN32_FIND_DATAW found;
    // Basic info skips the short names; the large fetch asks for bigger batches per call.
    const UniqueFindHandle find(FindFirstFileExW(Widen(JoinPath(folder, "*.*")).c_str(),
                                                 FindExInfoBasic, &found, FindExSearchNameMatch,
                                                 nullptr, FIND_FIRST_EX_LARGE_FETCH));
    if (!find) {
        return;
    }
    do {
        if (IsListed(found.dwFileAttributes, includeSystem)) {
            onEntry(Narrow(found.cFileName),
                    (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0);
        }
    } while (FindNextFileW(find.get(), &found));
}

// Windows opens a folder only by its path, so there is nothing to keep between listings.
struct FolderLister::OpenParents {};

FolderLister::FolderLister() : parents_(std::make_unique<OpenParents>()) {}

FolderLister::~FolderLister() = default;

void FolderLister::List(const std::string& folder, bool includeSystem,
                        const EntryCallback& onEntry) {
    ListFolder(folder, includeSystem, onEntry);
}

bool AnyNormalFileMatches(const std::string& pattern) {
    WIN32_FIND_DATAW found;
    const UniqueFindHandle find(FindFirstFileExW(Widen(pattern).c_str(), FindExInfoBasic, &found,
                                                 FindExSearchNameMatch, nullptr, 0));
    if (!find) {
        return false;
    }
    do {
        if (IsListed(found.dwFileAttributes, false) &&
            (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            return true;
        }
    } while (FindNextFileW(find.get(), &found));
    return false;
}

}  // namespace quorin
