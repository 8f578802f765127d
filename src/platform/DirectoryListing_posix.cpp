#include "platform/DirectoryListing.h"

#include "platform/UniqueFd.h"

#include <array>

#include <dirent.h>
#include <fcntl.h>
#include <glob.h>
#include <sys/stat.h>

namespace quorin {
namespace {

// getdents64 straight into one buffer: open, a few reads and close per folder, and no stat
// unless the file system does not say what an entry is.
constexpr size_t kBufferSize = 32 * 1024;

bool IsListed(std::string_view name) {
    // Two memchr calls: find_first_of would make one call per byte.
    return name.front() != '.' && name.find('\n') == std::string_view::npos &&
           name.find('\r') == std::string_view::npos;
}

enum class Kind { File, Folder, Vanished };

// A symbolic link counts as a file, so the walk never follows one into a loop.
Kind KindOf(int folderFd, const dirent64& entry) {
    if (entry.d_type != DT_UNKNOWN) {
        return entry.d_type == DT_DIR ? Kind::Folder : Kind::File;
    }
    struct stat status {};
    if (fstatat(folderFd, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return Kind::Vanished;
    }
    return S_ISDIR(status.st_mode) ? Kind::Folder : Kind::File;
}

void ListOpenFolder(const UniqueFd& folderFd, const EntryCallback& onEntry) {
    if (!folderFd) {
        return;
    }
    alignas(dirent64) std::array<char, kBufferSize> buffer;
    for (;;) {
        const ssize_t filled = getdents64(folderFd.get(), buffer.data(), buffer.size());
        if (filled <= 0) {
            return;
        }
        for (size_t offset = 0; offset < static_cast<size_t>(filled);) {
            const auto& entry = *reinterpret_cast<const dirent64*>(buffer.data() + offset);
            offset += entry.d_reclen;
            const std::string_view name(entry.d_name);
            if (!IsListed(name)) {
                continue;
            }
            const Kind kind = KindOf(folderFd.get(), entry);
            if (kind != Kind::Vanished) {
                onEntry(name, kind == Kind::Folder);
            }
        }
    }
}

UniqueFd OpenFolder(int atFd, const std::string& path, int mode = O_RDONLY) {
    return UniqueFd(
        openat(atFd, path.empty() ? "/" : path.c_str(), mode | O_DIRECTORY | O_CLOEXEC));
}

// A parent is only a place to open its subfolders from: where the system has them, a path-only
// handle costs less to open and to close (a sixth of a walk's opens are of parents).
#if defined(O_PATH)
constexpr int kParentMode = O_PATH;
#else
constexpr int kParentMode = O_RDONLY;
#endif

}  // namespace

void ListFolder(const std::string& folder, bool /*includeSystem*/, const EntryCallback& onEntry) {
    ListOpenFolder(OpenFolder(AT_FDCWD, folder), onEntry);
}

struct FolderLister::OpenParent {
    std::string path;
    UniqueFd fd;
};

FolderLister::FolderLister() : parent_(std::make_unique<OpenParent>()) {}

FolderLister::~FolderLister() = default;

void FolderLister::List(const std::string& folder, bool /*includeSystem*/,
                        const EntryCallback& onEntry) {
    const size_t slash = folder.rfind('/');
    if (slash == std::string::npos || slash == 0 || slash + 1 == folder.size()) {
        ListOpenFolder(OpenFolder(AT_FDCWD, folder), onEntry);
        return;
    }
    const std::string_view parent(folder.data(), slash);
    if (parent_->path != parent) {
        parent_->path = parent;
        parent_->fd = OpenFolder(AT_FDCWD, parent_->path, kParentMode);
    }
    // A parent that could not be opened is no help.
    ListOpenFolder(parent_->fd ? OpenFolder(parent_->fd.get(), folder.substr(slash + 1))
                               : OpenFolder(AT_FDCWD, folder),
                   onEntry);
}

bool AnyNormalFileMatches(const std::string& pattern) {
    glob_t found{};
    bool any = false;
    if (glob(pattern.c_str(), GLOB_MARK, nullptr, &found) == 0) {
        for (size_t i = 0; i < found.gl_pathc && !any; ++i) {
            const std::string_view path = found.gl_pathv[i];
            const std::string_view name = path.substr(path.find_last_of('/') + 1);
            any = !path.ends_with('/') && !name.empty() &&
                  name.front() != '.';  // GLOB_MARK: folders end in "/"
        }
    }
    globfree(&found);
    return any;
}

}  // namespace quorin
