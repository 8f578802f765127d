#include "ui/dialogs/NewWordModel.h"

#include "index/clsIndex.h"
#include "platform/DirectoryListing.h"
#include "platform/Path.h"
#include "platform/Text.h"

namespace quorin {

FolderAndFile SplitAtLastSeparator(std::string_view path) {
    if (path.size() < 2) {
        return {};
    }
    const size_t at = path.rfind(kPathSeparator, path.size() - 2);
    if (at == std::string_view::npos) {
        return {};
    }
    return {std::string(path.substr(0, at)), std::string(path.substr(at + 1))};
}

std::optional<NewWordFault> CheckNewWord(const clsIndex& index, std::string_view word,
                                         const std::string& path) {
    if (word.find_first_not_of(' ') == std::string_view::npos) {
        return NewWordFault::NoWord;
    }
    if (!AnyNormalFileMatches(path)) {
        return NewWordFault::NoFile;
    }
    if (index.Words().Item(word) != nullptr) {
        return NewWordFault::WordAssigned;
    }
    return std::nullopt;
}

clsItem NewWordItem(const clsIndex& index, std::string_view word, std::string_view path) {
    const FolderAndFile parts = SplitAtLastSeparator(path);
    clsItem item;
    item.Word = word;
    item.UCFilename = ToUpper(word);
    item.Directory = index.GetDirectory(parts.folder).value_or(0);
    item.Filename = parts.fileName;
    return item;
}

}  // namespace quorin
