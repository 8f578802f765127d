#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/dialogs/FileTypeLists.h"
#include "ui/dialogs/OptionsPage.h"

namespace quorin {

// "File Types": the types indexed, either only those chosen or all but those chosen. The page
// edits the dialog's working filter, which OK stores.
class FileTypesPage final : public OptionsPage {
  public:
    using ExtensionSource = std::function<std::vector<std::string>()>;

    // The saved filter and mode; the lists are built when the page is first shown.
    void Load(std::string filter, bool filterIsInclude, ExtensionSource extensions);

    const std::string& WorkingFilter() const { return workingFilter_; }
    void SetWorkingFilter(std::string filter) { workingFilter_ = std::move(filter); }
    bool IncludeOnly() const;
    // The focus into the list of the mode chosen, when the page is shown.
    void FocusList() const;
    // Takes a change of selection the list did not report as a click (the keyboard's Space under
    // some list implementations), so that OK stores what the list shows.
    void CatchUp();

    void OnCommand(int id, int code, HWND control) override;

  protected:
    void FirstShown() override;

  private:
    HWND List(FileTypeList list) const;
    void optFileTypes_Click(FileTypeList chosen);
    void lstFileTypes_Click(FileTypeList list);
    void ShowSelection(FileTypeList list) const;
    std::vector<bool> ListSelection(FileTypeList list) const;

    ExtensionSource extensions_;
    std::optional<FileTypeLists> lists_;
    std::string workingFilter_;
    bool savedInclude_ = true;
    FileTypeList mode_ = FileTypeList::Include;  // the mode the lists were last set for
    bool suppressEvents_ = false;
};

}  // namespace quorin
