#include "platform/FileSystem.h"

#include "platform/OsError.h"
#include "platform/TextFile.h"
#include "platform/UniqueFd.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>

namespace quorin {
namespace {

std::string FolderOf(const std::string& path) {
    const size_t slash = path.rfind('/');
    if (slash == std::string::npos) {
        return ".";
    }
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string WriteAll(int fd, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = write(fd, content.data(), content.size());
        if (written < 0 && errno != EINTR) {
            return LastOsErrorText();
        }
        content.remove_prefix(written < 0 ? 0 : static_cast<size_t>(written));
    }
    return {};
}

}  // namespace

void InputFileTraits::Close(Handle handle) {
    close(static_cast<int>(handle));
}

std::string InputFile::Open(const std::string& path) {
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        return LastOsErrorText();
    }
    handle_.reset(fd);
    return {};
}

std::string InputFile::Read(char* buffer, size_t size, size_t& count) {
    for (;;) {
        const ssize_t got = read(static_cast<int>(handle_.get()), buffer, size);
        if (got >= 0) {
            count = static_cast<size_t>(got);
            return {};
        }
        if (errno != EINTR) {
            return LastOsErrorText();
        }
    }
}

bool FileExists(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

std::string ReadFileBytes(const std::string& path, std::string& bytes) {
    const UniqueFd fd(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat status {};
    if (!fd || fstat(fd.get(), &status) != 0) {
        return LastOsErrorText();
    }
    bytes.clear();
    bytes.reserve(static_cast<size_t>(status.st_size));
    char chunk[64 * 1024];
    for (;;) {
        const ssize_t count = read(fd.get(), chunk, sizeof chunk);
        if (count == 0) {
            return {};
        }
        if (count < 0 && errno != EINTR) {
            return LastOsErrorText();
        }
        bytes.append(chunk, count < 0 ? 0 : static_cast<size_t>(count));
    }
}

std::string WriteNewFile(const std::string& path, std::string_view content) {
    UniqueFd fd(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!fd) {
        return LastOsErrorText();
    }
    std::string reason = WriteAll(fd.get(), content);
    if (reason.empty() && fsync(fd.get()) != 0) {
        reason = LastOsErrorText();
    }
    // close() reports late write errors of some file systems (NFS, full disks).
    if (close(fd.release()) != 0 && reason.empty()) {
        reason = LastOsErrorText();
    }
    return reason;
}

std::string MoveOver(const std::string& from, const std::string& to) {
    if (std::rename(from.c_str(), to.c_str()) != 0) {
        return LastOsErrorText();
    }
    // The new name is only durable once the folder itself has reached the disk.
    const UniqueFd folder(open(FolderOf(to).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder) {
        fsync(folder.get());
    }
    return {};
}

void RemoveFile(const std::string& path) noexcept {
    unlink(path.c_str());
}

}  // namespace quorin
