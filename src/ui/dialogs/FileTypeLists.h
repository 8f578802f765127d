#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorin {

// Whether a subkey name of the classes root is offered as a file type: a leading ".", and no
// "*", "," or further ".". So ".txt" is, while "*", ".tar.gz", ".a,b" and "txtfile" are not.
bool IsFileTypeName(std::string_view name);

// The names that IsFileTypeName keeps, in their order and their case.
std::vector<std::string> FileTypeNames(const std::vector<std::string>& keyNames);

// Whether the filter string lists the extension: its upper case followed by one blank occurs.
bool FilterLists(std::string_view filter, std::string_view extension);

enum class FileTypeList { Include, Exclude };

// The File Types page's two lists: the same extensions in the same order, each list with its
// own selection. Only the list of the mode in force decides the filter.
class FileTypeLists {
  public:
    // Pre-selects what `filter` lists, in the list of the saved mode only.
    FileTypeLists(std::vector<std::string> extensions, std::string_view filter,
                  bool filterIsInclude);

    const std::vector<std::string>& Extensions() const { return extensions_; }
    const std::vector<bool>& Selection(FileTypeList list) const;
    void Select(FileTypeList list, size_t index, bool selected);

    // A change of mode: `list` selects exactly what the other list leaves unselected, so that the
    // types indexed stay the same.
    void SelectComplement(FileTypeList list);

    // The filter string of `list`: each selected extension in upper case followed by one blank,
    // in list order; empty when nothing is selected.
    std::string Filter(FileTypeList list) const;

  private:
    std::vector<bool>& SelectionOf(FileTypeList list);

    std::vector<std::string> extensions_;
    std::vector<bool> include_;
    std::vector<bool> exclude_;
};

}  // namespace quorin
