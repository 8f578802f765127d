#include "platform/Path.h"

#include <cstdlib>
#include <vector>

#include <pwd.h>
#include <unistd.h>

namespace quorin {

std::string ExecutableFolder() {
    std::vector<char> buffer(256);
    for (;;) {
        const ssize_t length = readlink("/proc/self/exe", buffer.data(), buffer.size());
        if (length < 0) {
            return ".";
        }
        if (static_cast<size_t>(length) < buffer.size()) {
            const std::string path(buffer.data(), static_cast<size_t>(length));
            return path.substr(0, path.rfind(kPathSeparator));
        }
        buffer.resize(buffer.size() * 2);
    }
}

std::string DefaultRoot() {
    const char* home = std::getenv("HOME");
    if (home == nullptr || *home == '\0') {
        const passwd* user = getpwuid(getuid());
        home = user != nullptr ? user->pw_dir : "/";
    }
    std::string root(home);
    // "/" becomes "": JoinPath then forms "/name", and an empty folder lists the root.
    while (!root.empty() && root.back() == kPathSeparator) {
        root.pop_back();
    }
    return root;
}

}  // namespace quorin
