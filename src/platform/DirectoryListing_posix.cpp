#include "platform/DirectoryListing.h"

#include "platform/UniqueFd.h"

#include <algorithm>
#include <array>
#include <deque>

#include <dirent.h>
#include <fcntl.h>
#include <glob.h>
#include <sys/resource.h>
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

// Lists the open folder; true when it holds a subfolder.
bool ListOpenFolder(const UniqueFd& folderFd, const EntryCallback& onEntry) {
    bool anyFolder = false;
    if (!folderFd) {
        return anyFolder;
    }
    alignas(dirent64) std::array<char, kBufferSize> buffer;
    for (;;) {
        const ssize_t filled = getdents64(folderFd.get(), buffer.data(), buffer.size());
        if (filled <= 0) {
            return anyFolder;
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
                anyFolder |= kind == Kind::Folder;
                onEntry(name, kind == Kind::Folder);
            }
        }
    }
}

UniqueFd OpenFolder(int atFd, const char* path, int mode = O_RDONLY) {
    return UniqueFd(openat(atFd, *path != 0 ? path : "/", mode | O_DIRECTORY | O_CLOEXEC));
}

// A parent is only a place to open its subfolders from: where the system has them, a path-only
// handle costs less to open and to close.
#if defined(O_PATH)
constexpr int kParentMode = O_PATH;
#else
constexpr int kParentMode = O_RDONLY;
#endif

// Half the descriptors the process may hold, so that the rest of the program keeps its share.
size_t KeepableFolders() {
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY) {
        return 512;
    }
    return static_cast<size_t>(limit.rlim_cur / 2);
}

}  // namespace

void ListFolder(const std::string& folder, bool /*includeSystem*/, const EntryCallback& onEntry) {
    ListOpenFolder(OpenFolder(AT_FDCWD, folder.c_str()), onEntry);
}

// A folder listed with subfolders stays open, in the order its subfolders will come: a
// breadth-first walk lists them after those of every folder listed before it, so the parent
// wanted next is at the front, and each folder is opened once, by its name. Folders beyond the
// descriptors we may keep wait without theirs, and their subfolders are opened from the
// parent opened again by path.
struct FolderLister::OpenParents {
    struct Waiting {
        std::string path;
        UniqueFd fd;
    };
    std::deque<Waiting> waiting;
    size_t open = 0;
    size_t maxOpen = KeepableFolders();
    std::string reopenedPath;
    UniqueFd reopened;

    // The waiting entry of path, dropping the entries before it (their subfolders are done or
    // were all left out); nothing when path is not waiting (a walk's root).
    const Waiting* Find(std::string_view path) {
        const auto found = std::find_if(waiting.begin(), waiting.end(),
                                        [&](const Waiting& entry) { return entry.path == path; });
        if (found == waiting.end()) {
            return nullptr;
        }
        for (auto dropped = waiting.begin(); dropped != found; ++dropped) {
            open -= dropped->fd ? 1 : 0;
        }
        waiting.erase(waiting.begin(), found);
        return &waiting.front();
    }

    int At(const Waiting& parent) {
        if (parent.fd) {
            return parent.fd.get();
        }
        if (reopenedPath != parent.path) {
            reopenedPath = parent.path;
            reopened = OpenFolder(AT_FDCWD, reopenedPath.c_str(), kParentMode);
        }
        return reopened ? reopened.get() : AT_FDCWD;
    }

    void Keep(const std::string& path, UniqueFd fd) {
        if (open < maxOpen) {
            ++open;
        } else {
            fd.reset();
        }
        waiting.push_back({path, std::move(fd)});
    }
};

FolderLister::FolderLister() : parents_(std::make_unique<OpenParents>()) {}

FolderLister::~FolderLister() = default;

void FolderLister::List(const std::string& folder, bool /*includeSystem*/,
                        const EntryCallback& onEntry) {
    const size_t slash = folder.rfind('/');
    const bool hasParent = slash != std::string::npos && slash != 0 && slash + 1 != folder.size();
    const OpenParents::Waiting* parent =
        hasParent ? parents_->Find(std::string_view(folder.data(), slash)) : nullptr;
    const int at = parent != nullptr ? parents_->At(*parent) : AT_FDCWD;
    UniqueFd fd = OpenFolder(at, folder.c_str() + (at == AT_FDCWD ? 0 : slash + 1));
    if (ListOpenFolder(fd, onEntry)) {
        parents_->Keep(folder, std::move(fd));
    }
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
