#pragma once

#include <windows.h>

#include <string>

#include "ui/dialogs/OptionsPage.h"

namespace quorin {

class clsIndex;
class FileChooser;
class Prompter;

// "Words": the words the user assigned, with their files; removes one at a time, after asking,
// and adds through the Add New Word dialog. Both are saved at once.
class WordsPage final : public OptionsPage {
  public:
    struct Services {
        clsIndex& index;
        Prompter& prompter;
        FileChooser& files;
        HICON icon = nullptr;
    };

    explicit WordsPage(Services services) : services_(services) {}

    bool WordsChanged() const { return wordsChanged_; }

    void OnCommand(int id, int code, HWND control) override;

  protected:
    void FirstShown() override;

  private:
    void FillWords();
    void cmdDelete_Click();
    void cmdAddNew_Click();
    std::wstring CellText(int row, int column) const;

    Services services_;
    bool wordsChanged_ = false;
};

}  // namespace quorin
