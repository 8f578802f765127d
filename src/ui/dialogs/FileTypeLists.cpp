#include "ui/dialogs/FileTypeLists.h"

#include <utility>

#include "platform/Text.h"

namespace quorin {

bool IsFileTypeName(std::string_view name) {
    return !name.empty() && name.front() == '.' && name.find_first_of("*,") == name.npos &&
           name.find('.', 1) == name.npos;
}

std::vector<std::string> FileTypeNames(const std::vector<std::string>& keyNames) {
    std::vector<std::string> kept;
    for (const std::string& name : keyNames) {
        if (IsFileTypeName(name)) {
            kept.push_back(name);
        }
    }
    return kept;
}

bool FilterLists(std::string_view filter, std::string_view extension) {
    return filter.find(ToUpper(extension) + ' ') != filter.npos;
}

FileTypeLists::FileTypeLists(std::vector<std::string> extensions, std::string_view filter,
                             bool filterIsInclude)
    : extensions_(std::move(extensions)),
      include_(extensions_.size()),
      exclude_(extensions_.size()) {
    std::vector<bool>& saved = filterIsInclude ? include_ : exclude_;
    for (size_t i = 0; i < extensions_.size(); ++i) {
        saved[i] = FilterLists(filter, extensions_[i]);
    }
}

const std::vector<bool>& FileTypeLists::Selection(FileTypeList list) const {
    return list == FileTypeList::Include ? include_ : exclude_;
}

void FileTypeLists::Select(FileTypeList list, size_t index, bool selected) {
    SelectionOf(list).at(index) = selected;
}

void FileTypeLists::SelectComplement(FileTypeList list) {
    const std::vector<bool>& other =
        Selection(list == FileTypeList::Include ? FileTypeList::Exclude : FileTypeList::Include);
    std::vector<bool>& chosen = SelectionOf(list);
    for (size_t i = 0; i < chosen.size(); ++i) {
        chosen[i] = !other[i];
    }
}

std::string FileTypeLists::Filter(FileTypeList list) const {
    const std::vector<bool>& selected = Selection(list);
    std::string filter;
    for (size_t i = 0; i < extensions_.size(); ++i) {
        if (selected[i]) {
            filter += ToUpper(extensions_[i]) + ' ';
        }
    }
    return filter;
}

std::vector<bool>& FileTypeLists::SelectionOf(FileTypeList list) {
    return list == FileTypeList::Include ? include_ : exclude_;
}

}  // namespace quorin
