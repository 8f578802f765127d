#include "ui/dialogs/NewWordPath.h"

namespace quorin {

FolderAndFile SplitAtLastBackslash(std::string_view path) {
    if (path.size() < 2) {
        return {};
    }
    const size_t at = path.rfind('\\', path.size() - 2);
    if (at == std::string_view::npos) {
        return {};
    }
    return {std::string(path.substr(0, at)), std::string(path.substr(at + 1))};
}

}  // namespace quorin
