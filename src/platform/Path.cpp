#include "platform/Path.h"

namespace quorin {

std::string JoinPath(std::string_view folder, std::string_view name) {
    std::string path;
    path.reserve(folder.size() + 1 + name.size());
    path.append(folder).push_back(kPathSeparator);
    path.append(name);
    return path;
}

}  // namespace quorin
